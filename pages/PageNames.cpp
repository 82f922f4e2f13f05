#include "PageNames.h"

#include <algorithm>
#include <cstdlib>

#include "Addresses.h"
#include "CharacterReferences.h"
#include "Text.h"

namespace folionet {
namespace {

// A number with at least so many digits, as the patterns "00" and "000" give it.
std::string Padded(int number, std::size_t digits) {
  std::string text = std::to_string(std::abs(number));
  if (text.size() < digits) text.insert(0, digits - text.size(), '0');
  return number < 0 ? "-" + text : text;
}

std::string BookPart(std::string_view bookName, int bookNumber, bool use83, const CodePage& codePage) {
  return (use83 ? Padded(bookNumber, 2) : UnderscoreSpaces(codePage.ToLower(bookName))) + "_";
}

void AddWithChapter(std::string& text, const std::string& bookPart, int chapter, bool use83) {
  text += bookPart;
  if (use83) {
    text.append(Padded(chapter, 3)).append(".htm");
  } else {
    text.append(std::to_string(chapter)).append(".html");
  }
}

}  // namespace

bool IsPageName(std::string_view name) {
  if (name.empty() || name == "." || name == "..") return false;
  for (std::size_t i = 0; i < name.size(); ++i) {
    if (name[i] == '/' || name[i] == '\\' || IsControl(name, i)) return false;
  }
  return true;
}

std::string UnderscoreSpaces(std::string_view text) {
  std::string result(text);
  std::replace(result.begin(), result.end(), ' ', '_');
  return result;
}

std::string IndexFileName(std::string_view httpRoot) {
  const std::size_t slash = httpRoot.rfind('/');
  const std::string name =
      WithoutCharacterReferences(slash == std::string_view::npos ? httpRoot : httpRoot.substr(slash + 1));
  return AsFileName(TrimmedAsHtml(name));
}

PageNames::PageNames(const std::vector<std::string>& titles, bool use83, const CodePage& codePage) : m_use83(use83) {
  for (std::size_t i = 0; i < titles.size(); ++i) {
    m_inLink.push_back(BookPart(titles[i], static_cast<int>(i) + 1, use83, codePage));
    const std::string asked = WithoutCharacterReferences(codePage.Decode(m_inLink.back()));
    m_onDisk.push_back(AsFileName(asked));
    // A quotation mark ends the link's address.
    const bool isWhole = m_inLink.back().find('"') == std::string::npos;
    m_areReached.push_back(isWhole && LocalTarget(asked) == m_onDisk.back());
  }
}

std::string PageNames::OnDisk(int book, int chapter) const {
  std::string name;
  AddJoined(name, m_onDisk[Index(book)], chapter);
  return name;
}

void PageNames::AddJoined(std::string& text, const std::string& bookPart, int chapter) const {
  AddWithChapter(text, bookPart, chapter, m_use83);
}

}  // namespace folionet
