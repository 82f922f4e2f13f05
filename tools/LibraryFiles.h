#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace folionet::tools {

// False as well when it cannot be told; opening the path then tells why.
bool IsThere(const std::filesystem::path& path);

// The path of `name` in `folder`. Versalia's file system ignores case, so when `name` is not there but an entry that
// differs in case is, that entry's path.
std::filesystem::path Within(const std::filesystem::path& folder, const std::string& name);

// The whole content of a file. Throws LibraryError, naming it, when it cannot be read.
std::string ReadWholeFile(const std::filesystem::path& path);

// Makes a folder and its parents unless they are there. Throws LibraryError, naming it.
void MakeFolder(const std::filesystem::path& path);

// Writes a file whole: under another name first, which then takes the place of `path`. Throws LibraryError, naming the
// file; what stood there before is then untouched.
void WriteWholeFile(const std::filesystem::path& path, std::string_view content);

}  // namespace folionet::tools
