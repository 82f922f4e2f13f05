#pragma once

#include <sys/types.h>

#include <optional>
#include <string>
#include <string_view>

#include "FileHandle.h"

namespace folionet {

// The new content of a file, on its way: it is written beside the file as ".<name>.folionet-new", which then takes the
// file's place, so that the content is old or new and never a part. That file is locked from the start to the end, so
// that of two programs that replace the same file one waits for the other, two seconds at most; what a killed program
// left of it is used again. Everything is done in the folder that was opened at the start, wherever its path leads
// later.
class Replacement {
 public:
  // Gets hold of the file. A link is followed; one that leads to nothing, and anything but a regular file, is refused,
  // and stays as it is. A file that is made gets the mode `modeIfNew`, or the usual one for 0. Throws RunTimeError,
  // kPermissionDenied naming the other program that holds the file.
  explicit Replacement(const std::string& path, mode_t modeIfNew = 0);
  Replacement(const Replacement&) = delete;
  Replacement& operator=(const Replacement&) = delete;
  ~Replacement();

  // The file behind the links.
  const std::string& Path() const { return m_path; }

  // The content that is to be replaced; nothing when there is no such file. Throws RunTimeError; a file over `longest`
  // bytes is kOutOfMemory.
  std::optional<std::string> OldContent(std::size_t longest) const;

  // Writes the new content beside the file, safely to the disk. Throws RunTimeError.
  void Prepare(std::string_view bytes);

  // Prepare in three steps, for a content that comes piece by piece.
  void BeginContent();
  void AddContent(std::string_view bytes);
  void EndContent() const;

  // Gives what was prepared the file's name; it stays locked until this ends. Throws RunTimeError; the old content then
  // stands.
  void Commit();

 private:
  void LookAtTarget();
  void GetHold();
  bool IsStillNamed() const;

  std::string m_path;
  std::string m_name;   // of the file in its folder
  std::string m_fresh;  // of the new content there
  mode_t m_mode;        // that the new content shall have; 0 for the usual one
  FileHandle m_folder;
  FileHandle m_file;
  std::size_t m_length = 0;  // of what was written into it
  bool m_isCommitted = false;
};

// Throws RunTimeError where a Replacement of that file could not be begun; nothing is made. In a folder that is not
// there everything can be done.
void TryReplacement(const std::string& path);

// The path of a file's new content until it takes the file's place.
std::string OnItsWay(const std::string& path);

}  // namespace folionet
