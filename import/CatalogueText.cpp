#include "CatalogueText.h"

#include <algorithm>
#include <array>

#include "ImportError.h"
#include "RecordReader.h"
#include "Text.h"
#include "Utf8.h"
#include "WholeFile.h"

namespace folionet {
CatalogueText::CatalogueText(const std::string& path) : m_path(path), m_content(ReadIfThere(path).value_or("")) {
  RecordReader records(path, m_content, Subject::kCatalogue);
  while (true) {
    std::optional<CatalogueRecord> record = ReadCatalogueRecord(records);
    if (!record) return;
    m_records.push_back(*std::move(record));
    m_ends.push_back(std::min(records.Lines().NextStart(), m_content.size()));
  }
}

const CatalogueRecord* CatalogueText::FirstListed(const std::function<bool(const CatalogueRecord&)>& isIt) const {
  const auto found = std::find_if(m_records.begin(), m_records.end(),
                                  [&](const CatalogueRecord& record) { return record.IsListed() && isIt(record); });
  return found == m_records.end() ? nullptr : &*found;
}

const CatalogueRecord* CatalogueText::WithStem(std::string_view stem) const {
  return FirstListed([&](const CatalogueRecord& record) { return EqualIgnoringCase(record.stem, stem); });
}

const CatalogueRecord* CatalogueText::WithName(std::string_view name) const {
  return FirstListed([&](const CatalogueRecord& record) { return record.name == name; });
}

int CatalogueText::LowestFree() const {
  for (int number = 1; number < CatalogueRecord::kFirstUnlisted; ++number) {
    const auto isIt = [number](const CatalogueRecord& record) { return record.number == number; };
    if (std::none_of(m_records.begin(), m_records.end(), isIt)) return number;
  }
  throw ImportError(kOverflow, m_path,
                    {Words("Import", "A free number from 1 to 999 was expected for the translation.")});
}

std::string CatalogueText::With(const CatalogueRecord& added) const {
  const std::string tail = QuotedRecord(std::array{added.name, added.stem});
  std::string text;
  bool isPlaced = false;
  std::size_t start = 0;
  for (std::size_t i = 0; i < m_records.size(); ++i) {
    const CatalogueRecord& record = m_records[i];
    const std::string_view whole = std::string_view(m_content).substr(start, m_ends[i] - start);
    start = m_ends[i];
    if (record.IsListed() && EqualIgnoringCase(record.stem, added.stem)) {
      // A mark at the start and blank lines stay. A second record of the stem would list the translation twice.
      text += whole.substr(0, whole.find_first_of("+-.0123456789\""));
      if (!isPlaced) text += record.numbers + tail;
      isPlaced = true;
    } else {
      text += whole;
      if (!whole.ends_with('\n') && !whole.ends_with('\r')) text += "\r\n";
    }
  }
  const std::string_view rest = std::string_view(m_content).substr(start);
  text += rest.substr(0, rest.find(kCtrlZ));
  if (!isPlaced) text += std::to_string(LowestFree()) + ",0," + tail;
  return text;
}

}  // namespace folionet
