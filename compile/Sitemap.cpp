#include "Sitemap.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "Text.h"
#include "Utf8.h"

namespace folionet {
namespace {

bool IsUnreserved(char c) { return IsLetterOrDigit(c) || c == '-' || c == '.' || c == '_' || c == '~'; }

// Percent-encodes every byte but unreserved ones and those of `kept`; a "%" of `kept` that encodes nothing all the
// same.
std::string PercentEncoded(std::string_view text, std::string_view kept) {
  std::string encoded;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    const bool encodes = i + 2 < text.size() && HexDigit(text[i + 1]) >= 0 && HexDigit(text[i + 2]) >= 0;
    if (IsUnreserved(c) || (kept.find(c) != std::string_view::npos && (c != '%' || encodes))) {
      encoded += c;
    } else {
      encoded += "%" + TwoHexDigits(static_cast<unsigned char>(c));
    }
  }
  return encoded;
}

std::string XmlEscaped(std::string_view text) {
  std::string escaped;
  for (const char c : text) {
    switch (c) {
      case '&':
        escaped += "&amp;";
        break;
      case '\'':
        escaped += "&apos;";
        break;
      default:
        escaped += c;  // quotes and angle brackets are percent-encoded by now
    }
  }
  return escaped;
}

// What follows "http://" or "https://", in any letter case; empty when the address begins otherwise.
std::string_view BehindScheme(std::string_view address) {
  for (const std::string_view scheme : {"http://", "https://"}) {
    if (EqualIgnoringCase(address.substr(0, scheme.size()), scheme)) return address.substr(scheme.size());
  }
  return {};
}

// 2026-11-22
std::string DateText(std::time_t time) {
  std::tm day{};
  std::array<char, 16> text{};
  const std::size_t length = gmtime_r(&time, &day) == nullptr ? 0 : std::strftime(text.data(), text.size(), "%F", &day);
  return {text.data(), length};
}

}  // namespace

bool IsPublicAddress(const std::string& address) {
  const std::string_view rest = BehindScheme(address);
  const std::string_view host = rest.substr(0, rest.find('/'));
  return !host.empty() && std::none_of(host.begin(), host.end(), [](char c) { return c == '@' || (c & 0x80) != 0; }) &&
         std::none_of(rest.begin(), rest.end(), [](char c) {
           const auto byte = static_cast<unsigned char>(c);
           return byte <= ' ' || byte == 0x7F || c == '?' || c == '#';
         });
}

bool NamesAPage(const std::string& address) {
  const std::string_view rest = BehindScheme(address);
  const std::size_t dot = rest.rfind('.');
  if (dot == std::string_view::npos || rest.find('/') > dot) return false;
  return EqualIgnoringCase(rest.substr(dot), ".html") || EqualIgnoringCase(rest.substr(dot), ".htm");
}

std::string BuildSitemap(const std::string& address, const std::vector<SitemapPage>& pages) {
  // What a person gives as an address may be encoded already.
  std::string folder = PercentEncoded(address, ":/@!$&'()*+,;=%[]");
  if (!folder.ends_with('/')) folder += '/';
  std::string text =
      "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n"
      "<urlset xmlns=\"http://www.sitemaps.org/schemas/sitemap/0.9\">\r\n";
  for (const auto& [name, lastChange] : pages) {
    text += "<url><loc>" + XmlEscaped(folder + PercentEncoded(name, "!$&'()*+,;=:@")) + "</loc><lastmod>" +
            DateText(lastChange) + "</lastmod></url>\r\n";
  }
  return text + "</urlset>\r\n";
}

}  // namespace folionet
