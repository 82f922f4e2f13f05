#include "CatalogueText.h"

#include <algorithm>
#include <array>

#include "ImportError.h"
#include "Numbers.h"
#include "RecordReader.h"
#include "Utf8.h"
#include "WholeFile.h"

namespace folionet {
namespace {

constexpr int kFirstOtherNumber = 1000;

}  // namespace

CatalogueText::CatalogueText(const std::string& path) : m_path(path) {
  const auto content = ReadIfThere(path);
  if (!content) return;
  m_content = *content;
  RecordReader records(path, Subject::kCatalogue);
  std::array<std::string_view, 4> fields;
  while (records.Next(fields)) {
    Record record;
    record.number = records.Number(fields[0]);
    records.Integer(fields[1], kInt32Min, kInt32Max);
    record.numbers.append(fields[0]).append(",").append(fields[1]).append(",");
    record.entry = {std::string(fields[2]), std::string(fields[3])};
    record.end = std::min(records.Lines().NextStart(), m_content.size());
    m_records.push_back(std::move(record));
  }
}

bool CatalogueText::IsTranslation(const Record& record) { return record.number < kFirstOtherNumber; }

const CatalogueEntry* CatalogueText::WithStem(std::string_view stem) const {
  const auto found = std::find_if(m_records.begin(), m_records.end(), [&](const Record& record) {
    return IsTranslation(record) && EqualIgnoringCase(record.entry.stem, stem);
  });
  return found == m_records.end() ? nullptr : &found->entry;
}

const CatalogueEntry* CatalogueText::WithName(std::string_view name) const {
  const auto found = std::find_if(m_records.begin(), m_records.end(), [&](const Record& record) {
    return IsTranslation(record) && record.entry.name == name;
  });
  return found == m_records.end() ? nullptr : &found->entry;
}

int CatalogueText::LowestFree() const {
  for (int number = 1; number < kFirstOtherNumber; ++number) {
    const auto isIt = [number](const Record& record) { return record.number == number; };
    if (std::none_of(m_records.begin(), m_records.end(), isIt)) return number;
  }
  throw ImportError(kOverflow, m_path,
                    {Words("Import", "A free number from 1 to 999 was expected for the translation.")});
}

std::string CatalogueText::With(const CatalogueEntry& entry) const {
  const std::string tail = QuotedRecord(std::array{entry.name, entry.stem});
  std::string text;
  bool isPlaced = false;
  std::size_t start = 0;
  for (const Record& record : m_records) {
    const std::string_view whole = std::string_view(m_content).substr(start, record.end - start);
    start = record.end;
    if (IsTranslation(record) && EqualIgnoringCase(record.entry.stem, entry.stem)) {
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
  text += rest.substr(0, rest.find('\x1A'));  // a Ctrl+Z ends a text
  if (!isPlaced) text += std::to_string(LowestFree()) + ",0," + tail;
  return text;
}

}  // namespace folionet
