#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "ImportedBible.h"
#include "LibraryFiles.h"
#include "Sentence.h"
#include "modGlob.h"

// What an import makes of a library.

namespace folionet {

struct LibraryRequest {
  std::string name;        // display name; empty for the one that the text tells, or `fallbackName`
  std::string stem;        // stem of its files; empty for one made from the name
  std::string folder;      // where the library is or will be; empty for OwnLibraryFolder
  std::string titlesFile;  // path of a file of book titles to use; empty for the titles of the text, and, where it has
                           // none, those that the translation which is replaced was given
  std::string language;    // code of the text's language; empty for the one that it tells, or had before
  std::string pageLanguage;  // code that pages declare of a text without one; empty where that is not known
  std::string fallbackName;
  bool replace = false;  // a translation of the same name or stem, and its files, are replaced
};

// Where the language of a text was taken from.
enum class LanguageSource { kNone, kGiven, kText, kReplaced, kScript, kTitles };

// What is to be written.
struct LibraryPlan {
  LibraryFiles library;
  std::string stem;
  ImportedText text;
  int books = 0;
  int chapters = 0;
  std::size_t verses = 0;
  bool replaces = false;
  std::optional<ImportedText> replaced;                      // what was known of it, where it was imported
  std::vector<std::pair<std::string, std::string>> renamed;  // books of the text: their titles in it, and now
  LanguageSource languageFrom = LanguageSource::kNone;
  std::vector<Finding> findings;  // what a person is told; the remedies are those of the command line

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

// The text in the charset of the plan's files.
std::string Encoded(const LibraryPlan& plan, std::string_view utf8);

}  // namespace folionet
