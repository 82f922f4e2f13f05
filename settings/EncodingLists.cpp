#include "EncodingLists.h"

#include <array>
#include <optional>

#include "LineReader.h"
#include "RecordReader.h"
#include "WholeFile.h"

namespace folionet {

void ReadEncodingList(const std::string& path, const CodePage& codePage, std::vector<std::string>& entries) {
  RecordReader records(path);
  std::array<std::string_view, 2> fields;
  while (records.Next(fields)) entries.push_back(codePage.Decode(std::string(fields[0]).append(" ").append(fields[1])));
}

void AppendEncodingRecord(const std::string& path, const CodePage& codePage, const EncodingRecord& record) {
  const std::array fields{codePage.Encode(record.code), codePage.Encode(record.description)};
  AppendToFile(path, QuotedRecord(fields));
}

void RecodeEncodingList(const std::string& path, const CodePage& from, const CodePage& to) {
  std::optional<std::string> bytes = ReadIfThere(path);
  if (!bytes) return;
  if (bytes->starts_with(kByteOrderMark)) bytes->erase(0, kByteOrderMark.size());  // would be part of the first code
  const std::string recoded = to.Encode(from.Decode(*bytes));
  if (recoded != *bytes) ReplaceWholeFile(path, recoded);
}

}  // namespace folionet
