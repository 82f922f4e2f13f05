#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "Finding.h"
#include "modGlob.h"

namespace folionet {

// Books that are none of the 66: their name as the text has it, and how many verses they hold.
struct LeftOutBook {
  std::string name;
  std::size_t verses = 0;
};

// A Bible text as it was read, in UTF-8.
class ImportedBible {
 public:
  struct Verse {
    int book = 0;  // 1 to 66
    int chapter = 0;
    std::string_view field;  // the verse number as the text gives it: "3", "1-2", "3a"
    std::string_view text;
  };

  std::string name;                            // of the translation; empty when the text does not tell
  std::string language;                        // its code, lower case; empty when the text does not tell
  std::array<std::string, kBooks + 1> titles;  // element 0 is unused; empty for a book without
  std::array<std::string, kBooks + 1> names;   // by which the text calls its books, or codes; element 0 is unused
  std::vector<LeftOutBook> leftOut;
  Findings findings;  // what is doubled, out of order, empty or missing

  std::size_t VerseCount() const { return m_places.size(); }
  Verse VerseAt(std::size_t i) const;

  // The chapters of the sorted text: the places of the first verse of each and of the one behind its last.
  struct Chapter {
    int book = 0;
    int chapter = 0;
    std::size_t first = 0;
    std::size_t end = 0;
  };
  std::vector<Chapter> Chapters() const;

  // Adds a verse behind the others. Throws RunTimeError (kOutOfMemory) for a text beyond all measure.
  void Add(const Verse& verse);

  // Gives the books other numbers, by their old ones; 0 leaves a book out.
  using NewNumbers = std::array<std::uint8_t, 256>;
  void Renumber(const NewNumbers& numbers);

  // Sorts into books and chapters; within a chapter the order stays.
  void Sort();

  // All characters of the verses, in runs that each begin and end with a verse.
  const std::vector<std::string>& AllText() const { return m_blocks; }

 private:
  // Where a verse's field begins in a block; its text follows.
  struct Place {
    std::uint32_t start = 0;
    std::uint32_t textLength = 0;
    std::uint16_t block = 0;
    std::uint8_t fieldLength = 0;
    std::uint8_t book = 0;
    std::uint8_t chapter = 0;
  };

  std::vector<std::string> m_blocks;  // none grows beyond what it has reserved, so that no text is copied
  std::size_t m_length = 0;           // of them all
  std::vector<Place> m_places;
};

}  // namespace folionet
