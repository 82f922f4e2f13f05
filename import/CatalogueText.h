#pragma once

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

// The translations in `content`, the bytes of the catalogue `file`. Throws RunTimeError for a record that cannot be
// read.
std::vector<CatalogueEntry> CatalogueEntries(std::string_view content, const std::string& file);

// `content`, which is empty when there is no catalogue yet, with a record for the translation. The record of the same
// stem, in any case, keeps its place and its numbers; a new one comes last, under the lowest free number. Every other
// record stays byte for byte. Throws RunTimeError for a record that cannot be read, so that nothing is lost of a
// catalogue that is not understood, and when every number below 1000 is taken.
std::string WithTranslation(std::string_view content, const std::string& file, const CatalogueEntry& entry);

}  // namespace folionet
