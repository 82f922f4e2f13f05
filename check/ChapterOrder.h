#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <utility>

#include "FaultList.h"

namespace folionet {

// A chapter's name in a message: "Book 1 chapter 1"
std::string Place(int book, int chapter);

// A chapter as a file has it: how many verses, and where it begins.
struct ChapterSeen {
  int verses = 0;
  std::size_t line = 0;
};

// The chapters of a file by book and chapter.
using ChapterTable = std::map<std::pair<int, int>, ChapterSeen>;

// Follows the chapters of a file in their order, and names those that are doubled, missing or out of order.
class ChapterOrder {
 public:
  ChapterOrder(std::string path, FaultList& faults) : m_path(std::move(path)), m_faults(faults) {}

  // A chapter begins on `line`. Gives its entry, which is an older one when the chapter was there before.
  ChapterSeen& Begin(int book, int chapter, std::size_t line);

  // Names the books that are missing after the last one.
  void End();

  const ChapterTable& Chapters() const { return m_chapters; }

 private:
  void CheckStep(int book, int chapter, std::size_t line);

  std::string m_path;
  FaultList& m_faults;
  ChapterTable m_chapters;
  int m_book = 0;
  int m_chapter = 0;
};

}  // namespace folionet
