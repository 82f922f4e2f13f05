#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "Catalogue.h"

namespace folionet {

// The catalogue of translations (Catalogue.h) as it is written.
class CatalogueText {
 public:
  // Reads the catalogue, which is empty when there is none. Throws RunTimeError for a record that cannot be read, so
  // that nothing is lost of a catalogue that is not understood.
  explicit CatalogueText(const std::string& path);

  // Its bytes.
  const std::string& Content() const { return m_content; }

  // The first translation with a stem, in any case, and with a name; nullptr when there is none.
  const CatalogueRecord* WithStem(std::string_view stem) const;
  const CatalogueRecord* WithName(std::string_view name) const;

  // The bytes with a record for the translation. The record of the same stem keeps its place and its numbers; a new one
  // comes last, under the lowest free number. Every other record stays byte for byte. Throws RunTimeError when every
  // number below 1000 is taken.
  std::string With(const CatalogueRecord& record) const;

 private:
  const CatalogueRecord* FirstListed(const std::function<bool(const CatalogueRecord&)>& isIt) const;
  int LowestFree() const;

  std::string m_path;
  std::string m_content;
  std::vector<CatalogueRecord> m_records;
  std::vector<std::size_t> m_ends;  // of their lines in the content
};

}  // namespace folionet
