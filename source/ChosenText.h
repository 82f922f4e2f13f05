#pragma once

#include <string>
#include <utility>

#include "CodePage.h"
#include "modGlob.h"

namespace folionet {

class StoredSettings;

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

}  // namespace folionet
