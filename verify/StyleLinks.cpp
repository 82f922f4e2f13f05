#include "StyleLinks.h"

#include <unicode/utf8.h>

#include <algorithm>
#include <utility>

#include "Text.h"

namespace folionet {
namespace {

constexpr std::string_view kBlanks = " \t\r\n\f";

bool IsStyleBlank(char c) { return kBlanks.find(c) != std::string_view::npos; }

bool IsNamePart(char c) { return IsLetterOrDigit(c) || c == '-' || c == '_' || static_cast<unsigned char>(c) >= 0x80; }

// Whether the text at `at` begins with an ASCII lower-case word, in any letter case.
bool BeginsWith(std::string_view text, std::size_t at, std::string_view word) {
  return text.size() - at >= word.size() && std::equal(word.begin(), word.end(), text.begin() + std::ptrdiff_t(at),
                                                       [](char w, char c) { return w == c || w == (c | 0x20); });
}

// Goes through a style sheet once, from its start to its end.
class StyleReader {
 public:
  explicit StyleReader(std::string_view sheet) : m_sheet(sheet) {}

  std::vector<StyleLink> Read() {
    while (m_at < m_sheet.size()) {
      if (m_sheet.substr(m_at).starts_with("/*")) {
        m_at = std::min(m_sheet.find("*/", m_at + 2), m_sheet.size() - 2) + 2;
      } else if (m_sheet[m_at] == '"' || m_sheet[m_at] == '\'') {
        TakeQuoted();
      } else if (BeginsWith(m_sheet, m_at, "url(") && (m_at == 0 || !IsNamePart(m_sheet[m_at - 1]))) {
        m_at += 4;
        SkipBlanks();
        AddLink(IsAtQuote() ? TakeQuoted() : TakeUnquoted());
      } else if (BeginsWith(m_sheet, m_at, "@import")) {
        m_at += 7;
        SkipBlanks();
        if (IsAtQuote()) AddLink(TakeQuoted());
      } else {
        TakeCharacter();
      }
    }
    return std::move(m_links);
  }

 private:
  void SkipBlanks() { m_at = std::min(m_sheet.find_first_not_of(kBlanks, m_at), m_sheet.size()); }

  bool IsAtQuote() const { return m_at < m_sheet.size() && (m_sheet[m_at] == '"' || m_sheet[m_at] == '\''); }

  // A quoted text that its line's end leaves open ends there.
  std::string TakeQuoted() {
    const char quote = m_sheet[m_at++];
    std::string text;
    while (m_at < m_sheet.size() && m_sheet[m_at] != quote && m_sheet[m_at] != '\n') text += TakeCharacter();
    if (m_at < m_sheet.size()) ++m_at;
    return text;
  }

  std::string TakeUnquoted() {
    std::string text;
    while (m_at < m_sheet.size() && m_sheet[m_at] != ')' && !IsStyleBlank(m_sheet[m_at])) text += TakeCharacter();
    return text;
  }

  // The character at hand; one that is written as "\(" or "\28 " is resolved.
  std::string TakeCharacter() {
    if (m_sheet[m_at] != '\\' || m_at + 1 == m_sheet.size()) return std::string(1, m_sheet[m_at++]);
    const std::size_t start = ++m_at;
    while (m_at < m_sheet.size() && m_at < start + 6 && HexDigit(m_sheet[m_at]) >= 0) {
      ++m_at;
    }
    if (m_at == start) return std::string(m_sheet[m_at++] == '\n' ? 0 : 1, m_sheet[start]);
    const auto character =
        static_cast<UChar32>(std::stoul(std::string(m_sheet.substr(start, m_at - start)), nullptr, 16));
    if (m_at < m_sheet.size() && IsStyleBlank(m_sheet[m_at])) ++m_at;
    std::string bytes;
    if (U_IS_UNICODE_CHAR(character)) AppendUtf8(bytes, static_cast<char32_t>(character));
    return bytes;
  }

  void AddLink(std::string address) {
    m_line += static_cast<std::size_t>(std::count(m_sheet.begin() + static_cast<std::ptrdiff_t>(m_counted),
                                                  m_sheet.begin() + static_cast<std::ptrdiff_t>(m_at), '\n'));
    m_counted = m_at;
    m_links.push_back({std::move(address), m_line});
  }

  std::string_view m_sheet;
  std::size_t m_at = 0;
  std::size_t m_line = 0;
  std::size_t m_counted = 0;  // the lines up to here are in m_line
  std::vector<StyleLink> m_links;
};

}  // namespace

std::vector<StyleLink> FindStyleLinks(std::string_view sheet) { return StyleReader(sheet).Read(); }

std::vector<StyleLink> FindPictures(std::string_view set) {
  std::vector<StyleLink> pictures;
  for (std::size_t at = set.find_first_not_of(kBlanks); at < set.size();) {
    const std::size_t end = std::min(set.find_first_of(kBlanks, at), set.size());
    std::string_view address = set.substr(at, end - at);
    const bool isWhole = address.ends_with(',');  // no size follows
    while (address.ends_with(',')) address.remove_suffix(1);
    if (!address.empty()) pictures.push_back({std::string(address)});
    at = isWhole ? end : std::min(set.find(',', end), set.size() - 1) + 1;
    at = std::min(set.find_first_not_of(kBlanks, at), set.size());
  }
  return pictures;
}

}  // namespace folionet
