#include "Sitemap.h"

#include <algorithm>
#include <string_view>

namespace folionet {
namespace {

bool IsUnreserved(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '-' || c == '.' ||
         c == '_' || c == '~';
}

// Percent-encodes every byte but unreserved ones and those of `kept`.
std::string PercentEncoded(std::string_view text, std::string_view kept) {
  constexpr char kDigits[] = "0123456789ABCDEF";
  std::string encoded;
  for (const char c : text) {
    if (IsUnreserved(c) || kept.find(c) != std::string_view::npos) {
      encoded += c;
    } else {
      const auto byte = static_cast<unsigned char>(c);
      encoded.append({'%', kDigits[byte / 16], kDigits[byte % 16]});
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

}  // namespace

bool IsPublicAddress(const std::string& address) {
  for (const std::string_view scheme : {"http://", "https://"}) {
    if (address.starts_with(scheme)) {
      const std::string_view host = std::string_view(address).substr(scheme.size());
      return !host.empty() && host.front() != '/' && host.find_first_of("?#") == std::string_view::npos;
    }
  }
  return false;
}

std::string BuildSitemap(const std::string& address, const std::vector<std::string>& names) {
  // What a person gives as an address may be encoded already.
  std::string folder = PercentEncoded(address, ":/@!$&'()*+,;=%[]");
  if (!folder.ends_with('/')) folder += '/';
  std::string text =
      "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n"
      "<urlset xmlns=\"http://www.sitemaps.org/schemas/sitemap/0.9\">\r\n";
  for (const std::string& name : names) {
    text += "<url><loc>" + XmlEscaped(folder + PercentEncoded(name, "!$&'()*+,;=:@")) + "</loc></url>\r\n";
  }
  return text + "</urlset>\r\n";
}

}  // namespace folionet
