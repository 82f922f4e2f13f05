#pragma once

#include <string>
#include <string_view>

#include "CodePage.h"
#include "Finding.h"
#include "FolderLister.h"
#include "TypedFindings.h"
#include "modGlob.h"

namespace folionet {

// The library that is examined, and where what is found goes.
struct CheckedLibrary {
  ModGlob& glob;
  const CodePage& codePage;
  std::string titlesFile;  // the chosen file of book titles
  TypedTexts typed;        // for the pages, with the language that they declare
  Findings& findings;
  std::string translation = {};  // that is examined alone
  FolderLister folders{};        // which an examination changes nothing in

  // Whether the text that is examined was imported: it may lack anything, of which its import has told.
  bool IsImported() const { return glob.Imported.IsThere(); }

  // `line` is counted from 1; 0 is a fault of the file as a whole.
  void Add(FindingKind kind, const std::string& path, std::size_t line, Sentence what, BiblePlace place = {});

  // Names a file that is there in another letter case than it should be.
  void CheckLetterCase(const std::string& found, const std::string& expected);

  // Names the first byte of a text that the declared charset does not hold.
  void CheckBytes(const std::string& path, std::size_t line, std::string_view bytes, BiblePlace place = {});
};

// The two files of one translation, as they are found.
struct TranslationFiles {
  std::string index;
  std::string text;
  std::string properIndex;  // its exact name
};

}  // namespace folionet
