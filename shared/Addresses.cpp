#include "Addresses.h"

#include <algorithm>
#include <iterator>

#include "Text.h"

namespace folionet {
namespace {

constexpr std::string_view kBlanks = " \t\r\n\f";

bool HasScheme(std::string_view link) {
  const std::size_t end = link.find_first_of(":/?#");
  return end != std::string_view::npos && end > 0 && link[end] == ':';
}

}  // namespace

std::string AsFileName(std::string_view part) {
  std::string text;
  std::copy_if(part.begin(), part.end(), std::back_inserter(text),
               [](char c) { return c != '\t' && c != '\r' && c != '\n'; });
  std::string name;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const int high = text[i] == '%' && i + 2 < text.size() ? HexDigit(text[i + 1]) : -1;
    const int low = high >= 0 ? HexDigit(text[i + 2]) : -1;
    if (low >= 0) {
      name += static_cast<char>(high * 16 + low);
      i += 2;
    } else {
      name += text[i];
    }
  }
  return name;
}

std::string_view TrimmedAsHtml(std::string_view text) { return Trimmed(text, kBlanks); }

std::string_view RefreshAddress(std::string_view content) {
  constexpr std::string_view kName = "url";
  const std::size_t start = content.find_first_of(";,");
  if (start == std::string_view::npos) return {};
  content = TrimmedAsHtml(content.substr(start + 1));
  const bool isNamed = content.size() > kName.size() && std::equal(kName.begin(), kName.end(), content.begin(),
                                                                   [](char n, char c) { return n == (c | 0x20); });
  const std::string_view behind = isNamed ? TrimmedAsHtml(content.substr(kName.size())) : std::string_view();
  if (!behind.starts_with('=')) return content;
  content = TrimmedAsHtml(behind.substr(1));
  if (content.starts_with('"') || content.starts_with('\'')) {
    content = content.substr(1, content.find(content.front(), 1) - 1);
  }
  return content;
}

bool IsElsewhere(std::string_view address) {
  const std::string_view trimmed = TrimmedAsHtml(address);
  return HasScheme(trimmed) || trimmed.starts_with("//");
}

std::string LocalTarget(std::string_view address) {
  const std::string_view trimmed = TrimmedAsHtml(address);
  if (IsElsewhere(trimmed)) return {};
  return AsFileName(trimmed.substr(0, trimmed.find_first_of("?#")));
}

}  // namespace folionet
