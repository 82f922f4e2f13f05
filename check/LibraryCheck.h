#pragma once

#include <string>
#include <utility>

#include "CheckedLibrary.h"

namespace folionet {

// Examines a library, changing nothing. Each check is a routine in a file of its own, and has its row in one of the two
// tables of LibraryCheck.cpp.
class LibraryCheck {
 public:
  explicit LibraryCheck(CheckedLibrary library) : m_library(std::move(library)) {}

  // The catalogue and the book titles. Fills the lists of translations with those whose text is there, whatever else is
  // wrong.
  void ExamineLists();

  // A translation's chapter index and text. `stem` is in the bytes of the catalogue.
  void ExamineTranslation(const std::string& stem);

 private:
  CheckedLibrary m_library;
};

}  // namespace folionet
