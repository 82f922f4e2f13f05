#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "CodePage.h"
#include "modGlob.h"

namespace folionet {

class StoredSettings;

// What the forms of Versalia's files cannot say of a translation that was imported, in a small file beside its text:
// Modules/Bible/<STEM>.TXT.folionet. UTF-8, one KEY=VALUE a line; other lines are passed over. That it is there means,
// too, that the books and chapters of the chapter index are those that the text holds, by their own numbers.
//
//   name=Open English Bible
//   language=en
//   charset=windows-1252
//   titles=BOOKS_OEB.TXT
//   direction=rtl             only of a text that is written so

// The path of the small file of a verse file.
std::string ImportedTextFile(const std::string& verseFile);

// Reads it; nothing when there is none. Throws RunTimeError for one that cannot be read.
std::optional<ImportedText> ReadImportedText(const std::string& verseFile);

// The content of the small file.
std::string WriteImportedText(const ImportedText& text);

// Chooses the translation at a place of BibleNames: fills Imported from BibleImports. The chapters of the one before
// are forgotten; BooksInChapters counts those of this one.
void ChooseImported(ModGlob& glob, std::size_t place);

// The file of book titles to read: that of the chosen translation, when it was imported and the person has chosen no
// other. The default, and a file that belongs to a translation, are no choice of theirs unless given for this run, nor
// is one that this library lacks.
std::string BookTitlesFile(const StoredSettings& store, const ModGlob& glob);

// The titles of an imported translation's book lists, which may come from a delivered file in windows-1252 or from one
// in UTF-8, in the page's code page: with a reference for a character that it lacks, which names the letter in a link
// as on disk.
void EncodeTitles(ModGlob& glob, const CodePage& codePage);

// The places in the book lists of the first and the last book that an imported text holds, by ChaptersInBook.
std::pair<int, int> BooksOfText(const ModGlob& glob);

// The stem of a translation's files as a person sees and types it: in the default code page where it is not in that of
// the pages.
std::string ShownStem(const std::string& stem, const CodePage& codePage);

// The name of the translation at a place of BibleNames, in UTF-8 to be shown, and as pages have it in their bytes.
std::string ShownName(const ModGlob& glob, std::size_t place, const CodePage& codePage);
std::string PageName(const ModGlob& glob, std::size_t place, const CodePage& codePage);

}  // namespace folionet
