#pragma once

#include <algorithm>
#include <memory>
#include <string>
#include <string_view>

#include "SiteFolder.h"

namespace folionet {

// The page that is being written. Its lines are gathered in memory, and Close gives them to the folder in one go. A
// page that is not closed leaves nothing behind.
class PageFile {
 public:
  // Where pages are written from now on; `site` outlives this.
  void WriteInto(SiteFolder& site) { m_site = &site; }

  // Starts the page `name` (UTF-8, without a folder) of the folder; `folder` is its path, ending in the separator.
  // Throws RunTimeError (kBadFileName) for a name that IsPageName refuses.
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

  // Writes the page, as SiteFolder::Write does. Throws RunTimeError naming the file.
  PageChange Close();

  // Ends the page without writing it and gives its text.
  std::string Take();

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

  std::string m_folder;
  std::string m_name;
  std::unique_ptr<char[]> m_text;  // m_room bytes, the first m_size of them the page; the others have no value
  std::size_t m_room = 0;
  std::size_t m_size = 0;
  SiteFolder* m_site = nullptr;
};

}  // namespace folionet
