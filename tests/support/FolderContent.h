#pragma once

#include <map>
#include <string>
#include <string_view>

namespace folionet::test {

// The files below a folder with their bytes, by path relative to it; empty for a folder that is not there.
using FolderContent = std::map<std::string, std::string>;

FolderContent ReadFolder(const std::string& folder);

// The bytes of a file; empty for one that is not there.
std::string ReadFile(const std::string& path);

// Says where two texts differ: the first line that does, with both of its forms. Empty when they are equal.
std::string DescribeDifference(const std::string& name, std::string_view expected, std::string_view actual);

// Says which files are missing, which are too many and where the others differ. Empty when the folders are equal.
std::string DescribeDifference(const FolderContent& expected, const FolderContent& actual);

}  // namespace folionet::test
