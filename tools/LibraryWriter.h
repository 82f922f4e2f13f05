#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "VerseReader.h"

// Writes a translation in the layout of Versalia's installation:
//
//   Sysdefs/Translations.txt      the catalogue                     (Catalogue.h)
//   Sysdefs/BOOKS.TXT             the book titles, English          (BookTitles.h)
//   Sysdefs/BOOKS_<LANGUAGE>.TXT  the book titles of a language
//   Index/<STEM>.TXT.INDEX        the chapter index
//   Modules/Bible/<STEM>.TXT      the verses
//
// A verse is a line of five fields, separated by tabs: running number, book, chapter, verse, text. A chapter is a line
// of the index, seven fields separated by commas: running number, byte offset of its first verse line in the verse
// file, book, chapter, number of verses, length of its verse lines in bytes, quoted label of the book. Running numbers
// count from 1; lines end in CR LF.
//
//   1<TAB>1<TAB>1<TAB>1<TAB>In the beginning God created the heaven and the earth.
//   1,0,1,1,31,4411,"Gen"

namespace folionet::tools {

struct LibraryRequest {
  std::string name;    // display name of the translation, UTF-8
  std::string stem;    // stem of its files, UTF-8
  std::string folder;  // where the library is or will be, UTF-8
};

struct LibraryTexts {
  std::string verses;
  std::string index;
  int books = 0;
  int chapters = 0;
};

// Why no library can be made of `request`, naming the option; empty when one can.
std::string RefusalOf(const LibraryRequest& request);

// The verse file and its index. `verses` are sorted, as ParseVerses gives them.
LibraryTexts MakeLibraryTexts(const std::vector<Verse>& verses);

// Adds the translation to the library, which need not be there yet. Files of the stem and its record in the catalogue
// are replaced; book-title files that are there are left alone. The catalogue is written last, so that it never names
// files that are not there. Throws LibraryError, naming the file; each file is then either whole or as it was.
void WriteLibrary(const LibraryRequest& request, const LibraryTexts& texts);

// The absolute path of a request's folder, with a "/" at its end.
std::string AbsoluteFolder(const std::string& folder);

}  // namespace folionet::tools
