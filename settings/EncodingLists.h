#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "FileNames.h"
#include "OwnText.h"
#include "RunTimeError.h"

namespace folionet {

// The lists of languages and of page charsets: files of the program folder with one quoted record a line, the code
// first. They are in the code page of the pages, as a person may edit them:
//
//   "en-us","English USA"
//   "big5","(Traditional Chinese - Big 5)"

struct EncodingList {
  std::vector<std::string> entries;     // the two fields of each record, joined by a blank (UTF-8), in the file's order
  std::optional<RunTimeError> failure;  // a missing file or a bad record; the entries before it are there
};

// `name` is kLanguageList or kCharsetList.
EncodingList ReadEncodingList(const OwnFolder& folder, std::string_view name);

struct EncodingRecord {
  std::string code;
  std::string description;
};

// Adds a record at the list's end, on a line of its own; the file is made when missing. After a failure, which throws
// RunTimeError, the old content stands; a list with a bad record is one, for no record behind it is ever read.
void AppendEncodingRecord(const OwnFolder& folder, std::string_view name, const EncodingRecord& record);

}  // namespace folionet
