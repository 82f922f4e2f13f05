#pragma once

#include <string>
#include <utility>

#include "FileNames.h"

// A translation in the layout of Versalia's installation:
//
//   Sysdefs/Translations.txt             the catalogue                     (Catalogue.h)
//   Sysdefs/BOOKS.TXT                    the book titles, English          (TitleLanguages.h)
//   Sysdefs/BOOKS_<LANGUAGE>.TXT         the book titles of a language
//   Sysdefs/BOOKS_<STEM>.TXT             the book titles of the translation; with a number where that name is taken
//   Index/<STEM>.TXT.INDEX               the chapter index
//   Modules/Bible/<STEM>.TXT             the verses                        (LibraryWriter.h)
//   Modules/Bible/<STEM>.TXT.folionet    what else is known of it          (ImportedTextFile.h)

namespace folionet {

// Where the files of a library are or go: beside those that are there, in whatever case their folder is written.
class LibraryFiles {
 public:
  LibraryFiles() = default;
  explicit LibraryFiles(std::string folder) : m_folder(std::move(folder)) {}

  // Absolute, ends in a separator.
  const std::string& Folder() const { return m_folder; }

  std::string Sysdefs(const std::string& name) const { return At("Sysdefs", name); }
  std::string VerseFile(const std::string& stem) const { return At("Modules/Bible", stem + kVerseEnding); }
  std::string IndexFile(const std::string& stem) const { return At("Index", stem + kIndexEnding); }

  // The file that a translation of that stem would take the place of; empty when there is none.
  std::string InTheWay(const std::string& stem) const;

 private:
  std::string At(const char* below, const std::string& name) const;

  std::string m_folder;
};

}  // namespace folionet
