#include "ChosenText.h"

#include <algorithm>

#include "FileNames.h"
#include "Installation.h"
#include "Paths.h"
#include "StoredSettings.h"
#include "Utf8.h"

namespace folionet {

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

}  // namespace folionet
