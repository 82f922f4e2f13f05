#include "LibraryWriter.h"

#include <algorithm>

#include "Ascii.h"
#include "BookTable.h"
#include "BookTitles.h"
#include "Catalogue.h"
#include "LibraryFiles.h"
#include "Windows1252.h"

namespace folionet::tools {

namespace fs = std::filesystem;

namespace {

bool HasControl(const std::string& text) { return std::ranges::any_of(text, IsControl); }

std::string RefusalOfText(const std::string& option, const std::string& text) {
  if (text.find_first_not_of(' ') == std::string::npos) return option + ": expected a text that is not empty";
  if (HasControl(text)) return option + ": expected a text without control characters";
  if (!ToWindows1252(text)) return option + ": \"" + text + "\": expected characters of windows-1252, given as UTF-8";
  return {};
}

void WriteTitles(const fs::path& sysdefs) {
  for (const TitleLanguage& language : TitleLanguages()) {
    const fs::path path = Within(sysdefs, "BOOKS_" + std::string(language.name) + ".TXT");
    if (!IsThere(path)) WriteWholeFile(path, TitleFileText(language));
  }
  const fs::path path = Within(sysdefs, "BOOKS.TXT");
  if (!IsThere(path)) WriteWholeFile(path, TitleFileText(TitleLanguages().front()));
}

}  // namespace

std::string RefusalOf(const LibraryRequest& request) {
  if (std::string refusal = RefusalOfText("--name", request.name); !refusal.empty()) return refusal;
  if (std::string refusal = RefusalOfText("--stem", request.stem); !refusal.empty()) return refusal;
  // What a file name may not hold on Versalia's own file system, the separators of both platforms among it.
  if (request.stem.find_first_of("/\\:*?\"<>|") != std::string::npos) {
    return "--stem: \"" + request.stem + "\": expected a plain file stem, without any of / \\ : * ? \" < > |";
  }
  if (request.stem.starts_with('.')) return "--stem: \"" + request.stem + "\": expected a stem without a leading dot";
  if (request.folder.empty() || HasControl(request.folder)) {
    return "--into: expected a folder, without control characters in its name";
  }
  return {};
}

LibraryTexts MakeLibraryTexts(const std::vector<Verse>& verses) {
  LibraryTexts texts;
  std::size_t running = 0;
  int lastBook = 0;
  for (auto first = verses.begin(); first != verses.end();) {
    const auto end = std::find_if(
        first, verses.end(), [first](const Verse& v) { return v.book != first->book || v.chapter != first->chapter; });
    const std::size_t offset = texts.verses.size();
    const std::string chapter = std::to_string(first->book) + "\t" + std::to_string(first->chapter) + "\t";
    for (auto verse = first; verse != end; ++verse) {
      texts.verses += std::to_string(++running) + "\t" + chapter + std::to_string(verse->verse) + "\t";
      texts.verses += verse->text + "\r\n";
    }
    if (first->book != lastBook) ++texts.books;
    lastBook = first->book;
    texts.index += std::to_string(++texts.chapters) + "," + std::to_string(offset) + "," + std::to_string(first->book) +
                   "," + std::to_string(first->chapter) + "," + std::to_string(end - first) + "," +
                   std::to_string(texts.verses.size() - offset) + ",\"" + BookLabel(first->book) + "\"\r\n";
    first = end;
  }
  return texts;
}

void WriteLibrary(const LibraryRequest& request, const LibraryTexts& texts) {
  const fs::path root(AbsoluteFolder(request.folder));
  const fs::path sysdefs = Within(root, "Sysdefs");
  const fs::path index = Within(root, "Index");
  const fs::path bible = Within(Within(root, "Modules"), "Bible");
  const fs::path catalogue = Within(sysdefs, "Translations.txt");
  // Made before anything is written, so that a catalogue that cannot be read leaves the library as it is.
  const std::string records =
      WithTranslation(IsThere(catalogue) ? ReadWholeFile(catalogue) : std::string(), catalogue.string(),
                      ToWindows1252(request.name).value(), ToWindows1252(request.stem).value());

  for (const fs::path& folder : {sysdefs, index, bible}) MakeFolder(folder);
  WriteWholeFile(Within(bible, request.stem + ".TXT"), texts.verses);
  WriteWholeFile(Within(index, request.stem + ".TXT.INDEX"), texts.index);
  WriteTitles(sysdefs);
  WriteWholeFile(catalogue, records);
}

std::string AbsoluteFolder(const std::string& folder) {
  std::string path = fs::absolute(folder).lexically_normal().string();
  if (!path.ends_with('/')) path += '/';
  return path;
}

}  // namespace folionet::tools
