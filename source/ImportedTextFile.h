#pragma once

#include <optional>
#include <string>

#include "modGlob.h"

namespace folionet {

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

}  // namespace folionet
