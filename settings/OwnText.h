#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "CodePage.h"
#include "JointChange.h"

namespace folionet {

// The texts of a person's own in the program folder: the custom header and footer, the lists of languages and charsets.
// A file holds its text in the code page of the pages, where a letter that this code page lacks is a character
// reference. So that such a letter is not lost, the text as it was typed is then kept as UTF-8 beside the file, in
// ".<name>.utf-8"; where an editor has changed the file, it gives its letters to the references that were left as they
// were. A file that an editor has saved with a byte-order mark is UTF-8, or UTF-16, and comes back to the code page,
// without the mark, when it is next saved.
struct OwnFolder {
  std::string path;     // ends in the folder separator
  CodePage codePage{};  // of the files
  std::string note{};   // of a change that was not finished; see JointChange.h
};

// The text as UTF-8; nothing when there is no such file. Throws RunTimeError.
std::optional<std::string> ReadOwnText(const OwnFolder& folder, std::string_view name);

// Gives the file a text. Throws RunTimeError, and the old text stands.
void SaveOwnText(const OwnFolder& folder, std::string_view name, std::string_view text);

// Adds a line, which ends in CR LF, at the end, on a line of its own; the file is made when missing. Throws as
// SaveOwnText.
void AddToOwnText(const OwnFolder& folder, std::string_view name, std::string_view line);

// Adds to a change that the file, when it is there, holds its text in another code page; one that an editor has saved
// in UTF-8 without a mark comes from that. Throws RunTimeError.
void RecodeOwnText(const OwnFolder& folder, std::string_view name, const CodePage& to, JointChange& change);

}  // namespace folionet
