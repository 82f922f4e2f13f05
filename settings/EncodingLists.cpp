#include "EncodingLists.h"

#include <array>
#include <cerrno>
#include <optional>
#include <utility>

#include "RecordReader.h"

namespace folionet {

EncodingList ReadEncodingList(const OwnFolder& folder, std::string_view name) {
  EncodingList list;
  try {
    const std::string path = folder.path + std::string(name);
    std::optional<std::string> text = WorkAbout(Subject::kEncodingList, [&] { return ReadOwnText(folder, name); });
    if (!text) throw RunTimeError::FromErrno(ENOENT, path).About(Subject::kEncodingList);
    RecordReader records(path, *std::move(text), Subject::kEncodingList);
    std::array<std::string_view, 2> fields;
    while (records.Next(fields)) list.entries.push_back(std::string(fields[0]).append(" ").append(fields[1]));
  } catch (const RunTimeError& error) {
    list.failure = error;
  }
  return list;
}

void AppendEncodingRecord(const OwnFolder& folder, std::string_view name, const EncodingRecord& record) {
  const EncodingList list = ReadEncodingList(folder, name);
  if (list.failure && list.failure->Number() != kFileNotFound) throw RunTimeError(*list.failure);
  WorkAbout(Subject::kEncodingList, [&] {
    AddToOwnText(folder, name, QuotedRecord(std::array{record.code, record.description}));
  });
}

}  // namespace folionet
