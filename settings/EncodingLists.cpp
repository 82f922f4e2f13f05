#include "EncodingLists.h"

#include <array>

#include "Paths.h"
#include "RecordReader.h"
#include "WholeFile.h"

namespace folionet {

void ReadEncodingList(const std::string& path, const CodePage& codePage, std::vector<std::string>& entries) {
  RecordReader records(path);
  std::array<std::string, 2> fields;
  while (records.Next(fields)) entries.push_back(codePage.Decode(fields[0] + " " + fields[1]));
}

void AppendEncodingRecord(const std::string& path, const CodePage& codePage, const EncodingRecord& record) {
  const std::array fields{codePage.Encode(record.code), codePage.Encode(record.description)};
  std::string line = QuotedRecord(fields);
  if (FileExists(path)) {
    const std::string content = ReadWholeFile(path);
    if (!content.empty() && content.back() != '\n')
      line.insert(0, "\r\n");  // a person's editor left the last line open
  }
  AppendToFile(path, line);
}

}  // namespace folionet
