#include "ImportedText.h"

#include <algorithm>
#include <array>
#include <utility>

#include "FileNames.h"
#include "Installation.h"
#include "LineReader.h"
#include "Numbers.h"
#include "Paths.h"
#include "StoredSettings.h"
#include "Text.h"
#include "Utf8.h"
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
  while (!rest.empty()) {
    const std::size_t end = rest.find('\n');
    std::string_view line = rest.substr(0, end);
    rest = end == std::string_view::npos ? std::string_view() : rest.substr(end + 1);
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

void ChooseImported(ModGlob& glob, std::size_t place) {
  glob.Imported = place < glob.BibleImports.size() ? glob.BibleImports[place] : ImportedText();
  glob.ChaptersInBook = {};
  glob.missingChapters.clear();
}

std::string BookTitlesFile(const StoredSettings& store, const ModGlob& glob) {
  std::string stored = store.Text("cboLang");
  if (!glob.Imported.IsThere() || glob.Imported.titles.empty() || store.IsOverridden("cboLang")) return stored;
  const bool isOfText = std::any_of(glob.BibleImports.begin(), glob.BibleImports.end(), [&](const ImportedText& text) {
    return text.IsThere() && EqualIgnoringCase(text.titles, stored);
  });
  const bool isChosen = store.Has("cboLang") && !isOfText && !EqualIgnoringCase(stored, kDefaultTitles) &&
                        FileExists(SysdefsFile(glob, stored));
  return isChosen ? stored : glob.Imported.titles;
}

void EncodeTitles(ModGlob& glob, const CodePage& codePage) {
  const auto encode = [&](std::string& text) { text = codePage.Encode(IsUtf8(text) ? text : CodePage().Decode(text)); };
  std::for_each(glob.cboStartBook.begin(), glob.cboStartBook.end(), encode);
  std::for_each(glob.BookCodes.begin(), glob.BookCodes.end(), encode);
  glob.cboEndBook = glob.cboStartBook;
}

std::pair<int, int> BooksOfText(const ModGlob& glob) {
  int first = kBooks - 1;
  int last = 0;
  for (int book = 1; book <= kBooks; ++book) {
    if (glob.ChaptersInBook[static_cast<std::size_t>(book)] == 0) continue;
    first = std::min(first, book - 1);
    last = book - 1;
  }
  return {std::min(first, last), last};
}

std::string ShownStem(const std::string& stem, const CodePage& codePage) {
  return codePage.FindUndecodable(stem) == std::string::npos ? codePage.Decode(stem) : CodePage().Decode(stem);
}

std::string ShownName(const ModGlob& glob, std::size_t place, const CodePage& codePage) {
  const bool isImported = place < glob.BibleImports.size() && glob.BibleImports[place].IsThere();
  return isImported ? glob.BibleImports[place].name : codePage.DecodeForDisplay(glob.BibleNames[place]);
}

std::string PageName(const ModGlob& glob, std::size_t place, const CodePage& codePage) {
  const bool isImported = place < glob.BibleImports.size() && glob.BibleImports[place].IsThere();
  if (!isImported) return glob.BibleNames[place];
  std::string name;
  for (const char c : glob.BibleImports[place].name) {
    if (c == '&') {
      name += "&amp;";
    } else if (c == '<' || c == '>') {
      name += c == '<' ? "&lt;" : "&gt;";
    } else {
      name += c;
    }
  }
  return codePage.Encode(name);
}

}  // namespace folionet
