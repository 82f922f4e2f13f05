// Reads any bytes as a file of comma-separated records, of two, four and seven fields, and reads back what it writes.

#include <algorithm>
#include <array>

#include "FuzzFiles.h"
#include "RecordReader.h"
#include "RunTimeError.h"

namespace folionet::fuzz {
namespace {

template <std::size_t kFields>
void ReadAll(const std::string& path) {
  try {
    RecordReader records(path, Subject::kNone);
    std::array<std::string_view, kFields> fields;
    while (records.Next(fields)) {
      for (const std::string_view field : fields) records.Integer(field, -100000, 100000);
    }
  } catch (const RunTimeError& error) {
    if (error.Item() != path) std::abort();
  }
}

// A record of texts without line breaks reads back as it was.
void WriteAndRead(const Folder& folder, std::string_view input) {
  std::array<std::string, 2> written;
  for (std::size_t i = 0; i < input.size(); ++i) {
    if (input[i] != '\n' && input[i] != '\r') written[i % 2] += input[i];
  }
  RecordReader records(folder.Write("written", "x,y\r\n" + QuotedRecord(written)), Subject::kNone);
  std::array<std::string_view, 2> read;
  if (!records.Next(read) || !records.Next(read) || !std::ranges::equal(read, written)) std::abort();
}

}  // namespace
}  // namespace folionet::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace folionet::fuzz;
  static const Folder folder;
  const std::string path = folder.Write("records", Text(data, size));
  ReadAll<2>(path);
  ReadAll<4>(path);
  ReadAll<7>(path);
  WriteAndRead(folder, Text(data, size));
  return 0;
}
