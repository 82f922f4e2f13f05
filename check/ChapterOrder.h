#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <utility>

#include "CheckedLibrary.h"

namespace folionet {

// A chapter as a file has it: how many verses, and where it begins.
struct ChapterSeen {
  int verses = 0;   // lines of a text
  int covered = 0;  // verses that they hold: a line may hold several of them, or a part of one
  std::size_t line = 0;
};

// The chapters of a file by book and chapter.
using ChapterTable = std::map<std::pair<int, int>, ChapterSeen>;

// Follows the chapters of a file in their order, and names those that are doubled, missing or out of order.
class ChapterOrder {
 public:
  ChapterOrder(std::string path, CheckedLibrary& library) : m_path(std::move(path)), m_library(library) {}

  // A chapter begins on `line`. Gives its entry, which is an older one when the chapter was there before.
  ChapterSeen& Begin(int book, int chapter, std::size_t line);

  // Names the books that are missing after the last one.
  void End();

  const ChapterTable& Chapters() const { return m_chapters; }

 private:
  void AddMissingBooks(int from, int to, std::size_t line);
  void CheckStep(int book, int chapter, std::size_t line);

  std::string m_path;
  CheckedLibrary& m_library;
  ChapterTable m_chapters;
  int m_book = 0;
  int m_chapter = 0;
};

}  // namespace folionet
