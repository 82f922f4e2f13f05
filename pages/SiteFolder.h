#pragma once

#include <sys/stat.h>

#include <cstddef>
#include <ctime>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>

#include "FileChanges.h"
#include "FileHandle.h"
#include "MakeFolders.h"

namespace folionet {

// A file that is no page is one of ours where so much of it begins like the one that is written.
inline constexpr std::size_t kAlikeStart = 64;

// What writing a file does to it.
enum class PageChange { kNew, kChanged, kSame };

// What became of a file that was to be taken away.
enum class Removal { kRemoved, kNotThere, kFailed };

// Hears of a file before it is changed.
class ChangeWatch {
 public:
  virtual ~ChangeWatch() = default;
  virtual void WillChange(const std::string& name) = 0;

  // The file was written, and closing it failed: nobody knows what it holds.
  virtual void CouldNotClose(const std::string& name) = 0;

  // Whether that happened to the file in an earlier run, so that it is to be written whatever it seems to hold.
  virtual bool IsDoubtful(const std::string& name) const = 0;
};

// The output folder of a run, opened once: whatever its path leads to later, every file is compared, written and taken
// away in the folder that was opened. A file is never written through a link that leads out of it, nor through one that
// leads to another file of the run.
//
// A file that holds the same bytes already is left alone with its time stamp, for which no right to write is needed.
// One that differs is overwritten in place and cut to length, or replaced by a new one where it has other names too
// (hard links, as a copy of the site may be made of). A new file gets its name when it is whole. What a person put
// where a file of ours goes is kept beside as "<name>.before-folionet", the first time.
class SiteFolder {
 public:
  // Opens the folder `path`, which ends in the separator, to change its files or to plan that: a plan finds, says and
  // throws what a run would, but writes nothing, and a folder that is not there is to it as an empty one. Throws
  // RunTimeError.
  void Open(const std::string& path, Doing doing);

  bool IsOpen() const { return m_isOpen; }

  // Keeps the folder for this run alone until the end; a plan only asks whether a run has it. Throws RunTimeError
  // (kPermissionDenied) naming the program that has it. A file system that knows no locks is let pass.
  void Lock() const;

  // Throws that error; `holder` as LockHolder names it.
  [[noreturn]] void RefuseHeld(const std::string& holder) const;

  // Whether the run writes, or takes away, a file of that name: no link may lead one of its files to another one.
  void SetFilesOfRun(std::function<bool(const std::string& name)> isOfRun) { m_isOfRun = std::move(isOfRun); }

  // `watch` outlives this.
  void SetWatch(ChangeWatch* watch) { m_watch = watch; }

  // Gives a file its content. Throws RunTimeError naming the file.
  PageChange Write(const std::string& name, std::string_view text);

  // Whether a person's file, now kept beside, was in the place of the one that was written or removed last.
  bool HasKeptOld() const { return m_hasKeptOld; }

  // How long the file is that was written last.
  std::size_t WrittenBytes() const { return m_writtenBytes; }

  // Takes away a file that is no folder. Nothing is thrown but by the watch.
  Removal Remove(const std::string& name);

  // Whether there is a file of that name.
  bool Has(const std::string& name) const;

  // When the file was last changed; now for one that is not there.
  std::time_t LastChange(const std::string& name) const;

  // Whether both names are of one file, as where letter case makes no difference to the file system.
  bool IsOneFile(const std::string& name, const std::string& other) const;

  // Whether the file of that name is the one at `path`.
  bool IsSameFile(const std::string& name, const std::string& path) const;

  const std::string& Path() const { return m_path; }

  // Where the open folder is, with no link in it, whatever its path leads to since; by its path where the system does
  // not tell.
  std::string RealPath() const;

 private:
  struct OldFile {
    FileHandle file;
    int denied = 0;  // why it cannot be written to, as a value of errno
  };

  OldFile OpenOld(const std::string& name);
  FileHandle OpenThroughLink(const std::string& name, int flags);
  void RefuseShared(const std::string& name, const FileHandle& file);
  bool HasText(const std::string& name, const FileHandle& file, std::string_view text);
  bool IsOurs(const std::string& name, const FileHandle& file, std::string_view text);
  void WillChange(const std::string& name) const;
  bool WriteNew(const std::string& name, std::string_view text);
  PageChange WriteOld(const std::string& name, OldFile old, std::string_view text);
  void Replace(const std::string& name, std::string_view text, const struct stat& old) const;
  void Overwrite(const std::string& name, FileHandle file, std::string_view text, const struct stat& old) const;
  bool IsKept(const std::string& name) const;
  std::optional<bool> IsToKeep(const std::string& name) const;
  void Keep(const std::string& name, const FileHandle& file, const struct stat& status);
  void NoteKept(const std::string& name);
  void Check(int systemError, const std::string& name) const;

  std::string m_path;
  FileHandle m_folder;
  std::unique_ptr<FileChanges> m_changes;  // a FileWriter, or a FilePlan
  bool m_isOpen = false;
  bool m_isPlan = false;
  std::function<bool(const std::string& name)> m_isOfRun;
  std::map<std::pair<dev_t, ino_t>, std::string> m_linked;  // files behind links, and the name of the link
  std::set<std::string> m_kept;                             // what was kept since the folder was opened, or would be
  bool m_hasKeptOld = false;
  std::size_t m_writtenBytes = 0;
  // What the file before was: the pages of a site are mostly all new, all changed or all the same.
  PageChange m_expected = PageChange::kSame;
  std::string m_old;  // what was read of the file at hand
  ChangeWatch* m_watch = nullptr;
};

// What a person's file is kept as.
std::string KeptName(const std::string& name);

}  // namespace folionet
