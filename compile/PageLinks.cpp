#include "PageLinks.h"

#include <algorithm>
#include <array>

namespace folionet {
namespace {

constexpr std::array<std::string_view, 3> kAttributes{"href", "src", "background"};

char Lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

bool IsBlank(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; }

bool EqualsLower(std::string_view text, std::string_view lower) {
  return text.size() == lower.size() &&
         std::equal(text.begin(), text.end(), lower.begin(), [](char a, char b) { return Lower(a) == b; });
}

std::size_t SkipBlanks(std::string_view text, std::size_t at) {
  while (at < text.size() && IsBlank(text[at])) ++at;
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
  while (at < text.size() && !IsBlank(text[at]) && text[at] != '>') ++at;
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

}  // namespace

std::vector<PageLink> FindPageLinks(std::string_view page) {
  std::vector<PageLink> links;
  std::size_t line = 1;
  std::size_t counted = 0;
  bool inTag = false;
  for (std::size_t at = 0; at < page.size();) {
    if (page[at] == '<' || page[at] == '>') {
      inTag = page[at++] == '<';
      continue;
    }
    const std::size_t end = NameEnd(page, at);
    if (end == at || !inTag || at == 0 || !IsBlank(page[at - 1])) {
      at = std::max(end, at + 1);
      continue;
    }
    const std::string_view name = page.substr(at, end - at);
    std::size_t behind = SkipBlanks(page, end);
    const bool names = std::any_of(kAttributes.begin(), kAttributes.end(),
                                   [&](std::string_view attribute) { return EqualsLower(name, attribute); });
    at = end;
    if (!names || behind >= page.size() || page[behind] != '=') continue;
    const std::string_view value = TakeValue(page, behind);
    line += static_cast<std::size_t>(std::count(page.begin() + static_cast<std::ptrdiff_t>(counted),
                                                page.begin() + static_cast<std::ptrdiff_t>(at), '\n'));
    counted = at;
    links.push_back({value, line});
    at = behind;
  }
  return links;
}

std::string FindPageCharset(std::string_view page) {
  constexpr std::string_view kBefore = "charset=";
  const std::size_t found = page.find(kBefore);
  if (found == std::string_view::npos) return "windows-1252";
  const std::size_t start = found + kBefore.size();
  return std::string(page.substr(start, page.find_first_of("\"'> ;\r\n", start) - start));
}

std::string LocalTarget(std::string_view link) {
  if (HasScheme(link) || link.starts_with("//")) return {};
  return PercentDecoded(link.substr(0, link.find_first_of("?#")));
}

}  // namespace folionet
