#pragma once

#include <sys/stat.h>

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "FileHandle.h"

namespace folionet {

// What the system tells of an open file that is a regular one. Throws RunTimeError for another, and for one that is not
// open, with errno set; `path` is for the error.
struct stat RegularStatus(const FileHandle& file, const std::string& path);

// Reads a whole regular file as it is. Throws RunTimeError; a file over `longest` bytes is kOutOfMemory.
std::string ReadWholeFile(const std::string& path, std::size_t longest = std::size_t{64} << 20);

// As ReadWholeFile; nothing when there is no such file. One that is there and cannot be read still throws.
std::optional<std::string> ReadIfThere(const std::string& path, std::size_t longest = std::size_t{64} << 20);

// As ReadWholeFile, of a file that was opened, or could not be with errno set; `path` is for the error.
std::string ReadOpenFile(const FileHandle& file, const std::string& path, std::size_t longest);

// Gives the file `path` the content `bytes`, old or new and never a part, as Replacement does it: a link is followed,
// anything but a regular file refused, another program that saves it waited for. Throws RunTimeError, and the old
// content stands. Files that change together are a JointChange.
void ReplaceWholeFile(const std::string& path, std::string_view bytes);

// Replaces a file's content, which is empty when there is no such file, by what `edit` makes of it, with the same
// promise: whatever another program does to the file so comes before or after. A file over `longest` bytes is refused.
void EditWholeFile(const std::string& path, std::size_t longest,
                   const std::function<std::string(std::string content)>& edit);

// Writes all bytes to an open file at an offset, however often the system takes a part only. False with errno set.
bool WriteAll(int descriptor, std::string_view bytes, std::size_t offset);

// Brings what was written to an open file to the disk. False with errno set.
bool SyncToDisk(int descriptor);

// Makes an open file this long. False with errno set.
bool CutToLength(int descriptor, std::size_t length);

// Reads up to `wanted` bytes from an offset; fewer only at the file's end. False with errno set.
bool ReadAll(int descriptor, std::string& bytes, std::size_t wanted, std::size_t offset);

}  // namespace folionet
