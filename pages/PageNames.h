#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "CodePage.h"

namespace folionet {

// Every blank replaced by "_".
std::string UnderscoreSpaces(std::string_view text);

// The file name in the address of the index page (UTF-8): what follows its last "/", as a browser asks for it: without
// blanks around it, and with what character references and percent-encoding stand for.
std::string IndexFileName(std::string_view httpRoot);

// Whether a page may have this name (UTF-8): not empty, no folder separator, no control character, not "." or "..".
bool IsPageName(std::string_view name);

// The page names of one compile run by the one rule, a book's part and a chapter's part joined: "genesis_1.html" in the
// bytes of the code page, or "01_001.htm" for an 8.3 name; with what depends on the book only worked out once.
class PageNames {
 public:
  // `titles` are those of the start-book list: the first is book 1.
  PageNames(const std::vector<std::string>& titles, bool use83, const CodePage& codePage);

  // Adds the name as it stands in a link to the text. `book` is 1 to 66.
  void AddInLink(std::string& text, int book, int chapter) const { AddJoined(text, m_inLink[Index(book)], chapter); }

  // The name of the file, as Unicode in UTF-8 and with what character references and percent-encoding stand for, so
  // that a link and its file agree in a browser whatever the charset.
  std::string OnDisk(int book, int chapter) const;

  // What the names of all files of a book begin with.
  const std::string& BookOnDisk(int book) const { return m_onDisk[Index(book)]; }

  // Whether browsers find the book's pages: they do not where its title holds a "?", a "#" or, like another address, a
  // ":" behind its first word.
  bool AreReached(int book) const { return m_areReached[Index(book)]; }

  bool Use83() const { return m_use83; }

 private:
  static std::size_t Index(int book) { return static_cast<std::size_t>(book - 1); }
  void AddJoined(std::string& text, const std::string& bookPart, int chapter) const;

  bool m_use83;
  std::vector<std::string> m_inLink;
  std::vector<std::string> m_onDisk;
  std::vector<bool> m_areReached;
};

}  // namespace folionet
