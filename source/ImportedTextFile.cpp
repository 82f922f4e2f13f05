#include "ImportedTextFile.h"

#include <array>
#include <string_view>
#include <utility>

#include "Numbers.h"
#include "Text.h"
#include "WholeFile.h"

namespace folionet {
namespace {

using Field = std::string ImportedText::*;

constexpr std::array<std::pair<std::string_view, Field>, 5> kFields{{{"name", &ImportedText::name},
                                                                     {"language", &ImportedText::language},
                                                                     {"charset", &ImportedText::charset},
                                                                     {"titles", &ImportedText::titles},
                                                                     {"direction", &ImportedText::direction}}};

}  // namespace

std::string ImportedTextFile(const std::string& verseFile) { return verseFile + ".folionet"; }

std::optional<ImportedText> ReadImportedText(const std::string& verseFile) {
  constexpr std::size_t kLongest = std::size_t{64} << 10;
  const auto content = ReadIfThere(ImportedTextFile(verseFile), kLongest);
  if (!content) return std::nullopt;
  ImportedText text;
  std::string_view rest = *content;
  if (rest.starts_with(kByteOrderMark)) rest.remove_prefix(kByteOrderMark.size());
  for (std::string_view line : SplitAt(rest, "\n")) {
    if (line.ends_with('\r')) line.remove_suffix(1);
    const std::size_t equals = line.find('=');
    for (const auto& [key, field] : kFields) {
      if (line.substr(0, equals) == key && equals != std::string_view::npos)
        text.*field = TrimBlanks(line.substr(equals + 1));
    }
  }
  return text;
}

std::string WriteImportedText(const ImportedText& text) {
  std::string content;
  for (const auto& [key, field] : kFields) {
    if (field == &ImportedText::direction && text.direction.empty()) continue;
    content.append(key).append("=").append(text.*field).append("\r\n");
  }
  return content;
}

}  // namespace folionet
