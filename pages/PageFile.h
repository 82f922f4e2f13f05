#pragma once

#include <sys/stat.h>

#include <algorithm>
#include <memory>
#include <string>
#include <string_view>

#include "FileHandle.h"

namespace folionet {

// What writing a page does to its file.
enum class PageChange { kNew, kChanged, kSame };

// The page that is being written. Its lines are gathered in memory and written by Close in one go: a file that holds
// the same bytes already is left alone with its time stamp, one that differs is overwritten in place and cut to length,
// or made anew where it has other names too (hard links, as a copy of the site may be made of), a missing one is made.
// A page that is not closed leaves nothing behind.
class PageFile {
 public:
  // Starts the page `name` (UTF-8, without a folder) in `folder` (ending in the separator). Throws RunTimeError
  // (kBadFileName) for a name that IsPageName refuses.
  void Open(const std::string& folder, const std::string& name);

  // A page may not be longer, nor may a part of one that is put together before it is added; it is kOutOfMemory.
  static constexpr std::size_t kLongest = std::size_t{64} << 20;

  // Adds the texts, one behind the other, and CR LF. Throws RunTimeError for a page that gets too long.
  template <typename... Texts>
  void Print(const Texts&... texts) {
    AddAll(std::string_view(texts)..., std::string_view("\r\n"));
  }

  // Adds the texts to the line that the next Print ends.
  template <typename... Texts>
  void Add(const Texts&... texts) {
    AddAll(std::string_view(texts)...);
  }

  // Writes the page, or with SetDryRun only finds out what that would do. Throws RunTimeError naming the file; what has
  // reached it by then stays.
  PageChange Close();

  // Ends the page without writing it and gives its text.
  std::string Take();

  // From now on nothing is written, and a folder that is not there is as good as an empty one.
  void SetDryRun(bool dryRun) { m_dryRun = dryRun; }

  bool IsOpen() const { return m_isOpen; }

  // The name of the page that was opened last.
  const std::string& Name() const { return m_name; }

 private:
  // One look at the room that there is for all of the texts.
  template <typename... Views>
  void AddAll(const Views... texts) {
    const std::size_t size = (m_size + ... + texts.size());
    if (size > m_room) Grow(size);
    char* at = m_text.get() + m_size;
    ((at = Copy(texts, at)), ...);
    m_size = size;
  }

  // Numbers of chapters and verses are a few bytes, which a loop copies sooner than a call.
  static char* Copy(std::string_view text, char* at) {
    if (text.size() >= 4) return std::copy(text.begin(), text.end(), at);
    for (const char c : text) *at++ = c;
    return at;
  }

  void Grow(std::size_t size);
  std::string_view Text() const { return {m_text.get(), m_size}; }

  FileHandle OpenForWriting(bool& isNew) const;
  FileHandle OpenNew() const;
  FileHandle OpenExisting() const;
  struct stat StatusOfRegular(const FileHandle& file) const;
  bool HasText(const FileHandle& file);
  PageChange Compare();
  [[noreturn]] void Fail(int systemError) const;

  std::string m_folder;
  std::string m_name;
  std::unique_ptr<char[]> m_text;  // m_room bytes, the first m_size of them the page; the others have no value
  std::size_t m_room = 0;
  std::size_t m_size = 0;
  std::string m_old;
  FileHandle m_folderHandle;
  bool m_isOpen = false;
  // What the page before was: the pages of a site are mostly all new, all changed or all the same.
  PageChange m_expected = PageChange::kNew;
  bool m_dryRun = false;
};

// Whether a page may have this name (UTF-8): not empty, no folder separator, no control character, not "." or "..".
bool IsPageName(std::string_view name);

}  // namespace folionet
