#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

// The catalogue of translations, Sysdefs/Translations.txt, as it is written: one record a line, four fields separated
// by commas: number, a number that is 0 here, display name, file stem. Texts may stand in double quotes, a quote inside
// them is written twice. Numbers from 1000 on belong to records that are no translations.
//
//   1,0,"King James Version","KJV"

namespace folionet {

// A translation of the catalogue, in its bytes.
struct CatalogueEntry {
  std::string name;
  std::string stem;
};

class CatalogueText {
 public:
  // Reads the catalogue, which is empty when there is none. Throws RunTimeError for a record that cannot be read, so
  // that nothing is lost of a catalogue that is not understood.
  explicit CatalogueText(const std::string& path);

  // Its bytes.
  const std::string& Content() const { return m_content; }

  // The first translation with a stem, in any case, and with a name; nullptr when there is none.
  const CatalogueEntry* WithStem(std::string_view stem) const;
  const CatalogueEntry* WithName(std::string_view name) const;

  // The bytes with a record for the translation. The record of the same stem keeps its place and its numbers; a new one
  // comes last, under the lowest free number. Every other record stays byte for byte. Throws RunTimeError when every
  // number below 1000 is taken.
  std::string With(const CatalogueEntry& entry) const;

 private:
  struct Record {
    double number = 0;
    std::string numbers;  // the first two fields, with the comma behind each
    CatalogueEntry entry;
    std::size_t end = 0;  // of its line in the content
  };

  static bool IsTranslation(const Record& record);
  int LowestFree() const;

  std::string m_path;
  std::string m_content;
  std::vector<Record> m_records;
};

}  // namespace folionet
