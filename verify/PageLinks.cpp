#include "PageLinks.h"

#include <algorithm>
#include <array>
#include <utility>

namespace folionet {
namespace {

struct Attribute {
  std::string_view name;
  LinkForm form;
  std::string_view element{};  // the only one that has it; empty when any may
};

constexpr std::array<Attribute, 12> kAttributes{{{"href", LinkForm::kBase, "base"},
                                                 {"href", LinkForm::kPage},
                                                 {"src", LinkForm::kPage, "iframe"},
                                                 {"src", LinkForm::kPage, "frame"},
                                                 {"src", LinkForm::kFile},
                                                 {"background", LinkForm::kFile},
                                                 {"poster", LinkForm::kFile},
                                                 {"data", LinkForm::kPage, "object"},
                                                 {"content", LinkForm::kRefresh, "meta"},
                                                 {"srcset", LinkForm::kPictureSet},
                                                 {"imagesrcset", LinkForm::kPictureSet},
                                                 {"style", LinkForm::kStyle}}};

// Charsets that browsers read as another one, as the WHATWG's Encoding Standard has it.
constexpr std::array<std::pair<std::string_view, std::string_view>, 14> kReadAs{{{"us-ascii", "windows-1252"},
                                                                                 {"ascii", "windows-1252"},
                                                                                 {"iso-8859-1", "windows-1252"},
                                                                                 {"iso8859-1", "windows-1252"},
                                                                                 {"latin1", "windows-1252"},
                                                                                 {"iso-8859-8-i", "iso-8859-8"},
                                                                                 {"iso-8859-9", "windows-1254"},
                                                                                 {"iso-8859-11", "windows-874"},
                                                                                 {"tis-620", "windows-874"},
                                                                                 {"gb2312", "gbk"},
                                                                                 {"euc-kr", "windows-949"},
                                                                                 {"utf-16", "utf-8"},
                                                                                 {"utf-16le", "utf-8"},
                                                                                 {"utf-16be", "utf-8"}}};

// Elements whose content is no markup.
constexpr std::array<std::string_view, 4> kRawElements{"script", "style", "title", "textarea"};

char Lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

bool IsHtmlBlank(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n' || c == '\f'; }

bool EqualsLower(std::string_view text, std::string_view lower) {
  return text.size() == lower.size() &&
         std::equal(text.begin(), text.end(), lower.begin(), [](char a, char b) { return Lower(a) == b; });
}

// The first place from `at` on where a page has this lower-case text in any letter case; the page's end when there is
// none.
std::size_t FindLower(std::string_view page, std::string_view lower, std::size_t at) {
  const auto* const found =
      std::search(page.begin() + static_cast<std::ptrdiff_t>(std::min(at, page.size())), page.end(), lower.begin(),
                  lower.end(), [](char a, char b) { return Lower(a) == b; });
  return static_cast<std::size_t>(found - page.begin());
}

std::size_t SkipBlanks(std::string_view text, std::size_t at) {
  while (at < text.size() && IsHtmlBlank(text[at])) ++at;
  return at;
}

// The end of the attribute name that begins at `at`.
std::size_t NameEnd(std::string_view text, std::size_t at) {
  while (at < text.size() && (Lower(text[at]) >= 'a' && Lower(text[at]) <= 'z')) ++at;
  return at;
}

// The value behind a "=" that stands at `at`; leaves `at` behind it.
std::string_view TakeValue(std::string_view text, std::size_t& at) {
  at = SkipBlanks(text, at + 1);
  if (at < text.size() && (text[at] == '"' || text[at] == '\'')) {
    const std::size_t start = at + 1;
    const std::size_t end = std::min(text.find(text[at], start), text.size());
    at = std::min(end + 1, text.size());
    return text.substr(start, end - start);
  }
  const std::size_t start = at;
  while (at < text.size() && !IsHtmlBlank(text[at]) && text[at] != '>') ++at;
  return text.substr(start, at - start);
}

int HexDigit(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  const char lower = Lower(c);
  return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

std::string PercentDecoded(std::string_view text) {
  std::string decoded;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const int high = text[i] == '%' && i + 2 < text.size() ? HexDigit(text[i + 1]) : -1;
    const int low = high >= 0 ? HexDigit(text[i + 2]) : -1;
    if (low >= 0) {
      decoded += static_cast<char>(high * 16 + low);
      i += 2;
    } else {
      decoded += text[i];
    }
  }
  return decoded;
}

bool HasScheme(std::string_view link) {
  const std::size_t end = link.find_first_of(":/?#");
  return end != std::string_view::npos && end > 0 && link[end] == ':';
}

std::string_view Trimmed(std::string_view text) {
  while (!text.empty() && IsHtmlBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && IsHtmlBlank(text.back())) text.remove_suffix(1);
  return text;
}

// Goes through a page's tags once, from its start to its end.
class LinkFinder {
 public:
  explicit LinkFinder(std::string_view page) : m_page(page) {}

  std::vector<PageLink> Find() {
    while (m_at < m_page.size()) {
      if (m_page[m_at] == '<') {
        OpenTag();
      } else if (m_page[m_at] == '>') {
        CloseTag();
      } else {
        ReadName();
      }
    }
    return std::move(m_links);
  }

 private:
  void OpenTag() {
    if (m_page.substr(m_at).starts_with("<!--")) {
      m_at = std::min(m_page.find("-->", m_at + 2), m_page.size());  // "<!-->" is a whole comment
      m_inTag = false;
      return;
    }
    m_inTag = true;
    m_tagStart = m_at++;
    m_element = m_page.substr(m_at, NameEnd(m_page, m_at) - m_at);
  }

  void CloseTag() {
    const std::size_t start = ++m_at;
    if (!std::exchange(m_inTag, false)) return;
    const auto* const raw = std::find_if(kRawElements.begin(), kRawElements.end(),
                                         [&](std::string_view element) { return EqualsLower(m_element, element); });
    if (raw == kRawElements.end()) return;
    m_at = FindLower(m_page, "</" + std::string(*raw), m_at);
    if (*raw == "style") AddLink(start, m_page.substr(start, m_at - start), LinkForm::kSheet);
  }

  void ReadName() {
    const std::size_t start = m_at;
    const std::size_t end = NameEnd(m_page, start);
    m_at = std::max(end, start + 1);
    if (end == start || !m_inTag || start == 0 || !IsHtmlBlank(m_page[start - 1])) return;
    const std::string_view name = m_page.substr(start, end - start);
    std::size_t behind = SkipBlanks(m_page, end);
    const auto* const attribute = std::find_if(kAttributes.begin(), kAttributes.end(), [&](const Attribute& known) {
      return EqualsLower(name, known.name) && (known.element.empty() || EqualsLower(m_element, known.element));
    });
    if (attribute == kAttributes.end() || behind >= m_page.size() || m_page[behind] != '=') return;
    const std::string_view value = TakeValue(m_page, behind);
    if (attribute->form != LinkForm::kRefresh || IsRefresh()) AddLink(end, value, FormInTag(attribute->form));
    m_at = behind;
  }

  std::string_view Tag() const { return m_page.substr(m_tagStart, m_page.find('>', m_tagStart) - m_tagStart); }

  bool TagHas(std::string_view lower) const { return FindLower(Tag(), lower, 0) < Tag().size(); }

  bool IsRefresh() const {
    constexpr std::string_view kName = "http-equiv";
    const std::string_view tag = Tag();
    std::size_t at = SkipBlanks(tag, FindLower(tag, kName, 0) + kName.size());
    return at < tag.size() && tag[at] == '=' && EqualsLower(Trimmed(TakeValue(tag, at)), "refresh");
  }

  // A link element may name pages too, such as the next one.
  LinkForm FormInTag(LinkForm form) const {
    const bool isFile = form == LinkForm::kPage && EqualsLower(m_element, "link") &&
                        (TagHas("stylesheet") || TagHas("icon") || TagHas("preload"));
    return isFile ? LinkForm::kFile : form;
  }

  // `at` is where the line of the link is counted.
  void AddLink(std::size_t at, std::string_view value, LinkForm form) {
    m_line += static_cast<std::size_t>(std::count(m_page.begin() + static_cast<std::ptrdiff_t>(m_counted),
                                                  m_page.begin() + static_cast<std::ptrdiff_t>(at), '\n'));
    m_counted = at;
    m_links.push_back({value, m_line, form});
  }

  std::string_view m_page;
  std::size_t m_at = 0;
  bool m_inTag = false;
  std::size_t m_tagStart = 0;
  std::string_view m_element;  // of the tag at hand
  std::size_t m_line = 1;
  std::size_t m_counted = 0;  // the lines up to here are in m_line
  std::vector<PageLink> m_links;
};

}  // namespace

std::vector<PageLink> FindPageLinks(std::string_view page) { return LinkFinder(page).Find(); }

bool IsUtf16(std::string_view page) { return page.starts_with("\xFF\xFE") || page.starts_with("\xFE\xFF"); }

std::string FindPageCharset(std::string_view page) {
  constexpr std::string_view kName = "charset";
  if (page.starts_with("\xEF\xBB\xBF")) return "utf-8";
  for (std::size_t at = FindLower(page, "<meta", 0); at < page.size(); at = FindLower(page, "<meta", at + 1)) {
    const std::string_view tag = page.substr(at, std::min(page.find('>', at), page.size()) - at);
    std::size_t found = SkipBlanks(tag, FindLower(tag, kName, 0) + kName.size());
    if (found >= tag.size() || tag[found] != '=') continue;
    found = SkipBlanks(tag, found + 1);
    if (found < tag.size() && (tag[found] == '"' || tag[found] == '\'')) ++found;
    return std::string(tag.substr(found, tag.find_first_of("\"'/ ;\r\n", found) - found));
  }
  return "windows-1252";
}

std::string BrowserCharset(std::string_view declared) {
  const auto* const other =
      std::find_if(kReadAs.begin(), kReadAs.end(), [&](const auto& row) { return EqualsLower(declared, row.first); });
  return std::string(other == kReadAs.end() ? declared : other->second);
}

std::string_view RefreshAddress(std::string_view content) {
  constexpr std::string_view kName = "url";
  const std::size_t start = content.find_first_of(";,");
  if (start == std::string_view::npos) return {};
  content = Trimmed(content.substr(start + 1));
  const std::size_t at = SkipBlanks(content, kName.size());
  if (FindLower(content, kName, 0) != 0 || at >= content.size() || content[at] != '=') return content;
  content = Trimmed(content.substr(at + 1));
  if (content.starts_with('"') || content.starts_with('\'')) {
    content = content.substr(1, content.find(content.front(), 1) - 1);
  }
  return content;
}

bool IsElsewhere(std::string_view address) {
  const std::string_view trimmed = Trimmed(address);
  return HasScheme(trimmed) || trimmed.starts_with("//");
}

std::string LocalTarget(std::string_view address) {
  const std::string_view trimmed = Trimmed(address);
  if (IsElsewhere(trimmed)) return {};
  return PercentDecoded(trimmed.substr(0, trimmed.find_first_of("?#")));
}

}  // namespace folionet
