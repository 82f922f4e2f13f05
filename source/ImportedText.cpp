#include "ImportedText.h"

#include <array>
#include <utility>

#include "WholeFile.h"

namespace folionet {
namespace {

using Field = std::string ImportedText::*;

constexpr std::array<std::pair<std::string_view, Field>, 4> kFields{{{"name", &ImportedText::name},
                                                                     {"language", &ImportedText::language},
                                                                     {"charset", &ImportedText::charset},
                                                                     {"titles", &ImportedText::titles}}};

}  // namespace

std::string ImportedTextFile(const std::string& verseFile) { return verseFile + ".folionet"; }

std::optional<ImportedText> ReadImportedText(const std::string& verseFile) {
  constexpr std::size_t kLongest = std::size_t{64} << 10;
  const auto content = ReadIfThere(ImportedTextFile(verseFile), kLongest);
  if (!content) return std::nullopt;
  ImportedText text;
  for (std::string_view rest = *content; !rest.empty();) {
    const std::size_t end = rest.find('\n');
    std::string_view line = rest.substr(0, end);
    rest = end == std::string_view::npos ? std::string_view() : rest.substr(end + 1);
    if (line.ends_with('\r')) line.remove_suffix(1);
    const std::size_t equals = line.find('=');
    for (const auto& [key, field] : kFields) {
      if (line.substr(0, equals) == key && equals != std::string_view::npos) text.*field = line.substr(equals + 1);
    }
  }
  return text;
}

std::string WriteImportedText(const ImportedText& text) {
  std::string content;
  for (const auto& [key, field] : kFields) {
    content.append(key).append("=").append(text.*field).append("\r\n");
  }
  return content;
}

}  // namespace folionet
