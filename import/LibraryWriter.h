#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "ImportedBible.h"
#include "MakeFolders.h"
#include "Sentence.h"
#include "modGlob.h"

// Writes a translation in the layout of Versalia's installation:
//
//   Sysdefs/Translations.txt             the catalogue                     (CatalogueText.h)
//   Sysdefs/BOOKS.TXT                    the book titles, English          (TitleLanguages.h)
//   Sysdefs/BOOKS_<LANGUAGE>.TXT         the book titles of a language
//   Sysdefs/BOOKS_<STEM>.TXT             the book titles of the translation; with a number where that name is taken
//   Index/<STEM>.TXT.INDEX               the chapter index
//   Modules/Bible/<STEM>.TXT             the verses
//   Modules/Bible/<STEM>.TXT.folionet    what else is known of it          (ImportedText.h)
//
// A verse is a line of five fields, separated by tabs: running number, book, chapter, verse, text. A chapter is a line
// of the index, seven fields separated by commas: running number, byte offset of its first verse line in the verse
// file, book, chapter, number of verses, length of its verse lines in bytes, quoted label of the book. Running numbers
// count from 1; lines end in CR LF.
//
//   1<TAB>1<TAB>1<TAB>1<TAB>In the beginning God created the heaven and the earth.
//   1,0,1,1,31,4411,"Gen"

namespace folionet {

struct LibraryRequest {
  std::string name;        // display name; empty for the one that the text tells, or `fallbackName`
  std::string stem;        // stem of its files; empty for one made from the name
  std::string folder;      // where the library is or will be; empty for OwnLibraryFolder
  std::string titlesFile;  // path of a file of book titles to use; empty for the titles of the text, and, where it has
                           // none, those that the translation which is replaced was given
  std::string language;    // code of the text's language; empty for the one that it tells, or had before
  std::string fallbackName;
  bool replace = false;  // a translation of the same name or stem, and its files, are replaced
};

// Where the language of a text was taken from.
enum class LanguageSource { kNone, kGiven, kText, kReplaced, kScript, kTitles };

// What is to be written.
struct LibraryPlan {
  std::string folder;  // absolute, ends in a separator
  std::string stem;
  ImportedText text;
  int books = 0;
  int chapters = 0;
  std::size_t verses = 0;
  bool replaces = false;
  std::optional<ImportedText> replaced;                      // what was known of it, where it was imported
  std::vector<std::pair<std::string, std::string>> renamed;  // books of the text: their titles in it, and now
  LanguageSource languageFrom = LanguageSource::kNone;

  std::string verseFile;                                   // its path; WriteVerses gives its content
  std::string catalogue;                                   // its path
  std::string catalogueBefore;                             // its content when the plan was made
  std::vector<std::pair<std::string, std::string>> files;  // path and content of others; the catalogue is the last
};

// Why no library can be made of `request`; empty when one can. Its first argument is the option of the command line.
Sentence RefusalOf(const LibraryRequest& request);

// Works out what becomes of the library, which need not be there yet. Throws RunTimeError: for a file of the library
// that cannot be read, and for a translation that is there and not to be replaced.
LibraryPlan PlanLibrary(const ImportedBible& bible, const LibraryRequest& request);

// Gives the verse file to `take`, piece by piece, and returns the chapter index.
std::string WriteVerses(const ImportedBible& bible, const LibraryPlan& plan,
                        const std::function<void(std::string_view piece)>& take);

// Writes the plan that was made of the text, all of it or nothing (JointChange.h). Another import into the library is
// waited for, two seconds at most. Throws RunTimeError, also where the catalogue has changed since the plan was made;
// the library is then as it was. What a killed program left half done is completed by StoredSettings::FinishChange.
void WriteLibrary(const ImportedBible& bible, const LibraryPlan& plan);

// Plans and writes in one, behind an import that was waited for; with Doing::kPlan it writes nothing, and throws where
// the writing would, as far as that can be known. Gives the plan.
LibraryPlan ImportLibrary(const ImportedBible& bible, const LibraryRequest& request, Doing doing);

}  // namespace folionet
