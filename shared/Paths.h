#pragma once

#include <fcntl.h>

#include <string>
#include <string_view>
#include <vector>

namespace folionet {

// Paths are UTF-8 (any bytes that the file system gives are kept). Stored and typed paths may use "\" or "/"; the
// routines here take both.

inline constexpr char kFolderSeparator = '/';

// The path with the platform's separators: a "\" is one, unless a file or folder is there with it in its name.
std::string NativePath(std::string_view path);

// The path with a separator at its end; one that is there already is not doubled.
std::string WithSeparator(std::string_view path);

// Whether two paths name one folder, be one of them relative to the current folder or without a separator at its end.
bool IsSameFolder(std::string_view left, std::string_view right);

// The path from the root with no link in it; empty, with errno set, when it leads nowhere.
std::string RealPath(const std::string& path);

// Whether anything has this name, be it a link that leads nowhere, as to a disk that is away; and the same with a yes
// where the system does not tell.
bool IsThere(const std::string& path);
bool MayBeThere(const std::string& path);

// Whether a path leads nowhere, as far as the system tells.
bool IsMissing(const std::string& path);

bool IsLink(const std::string& path);

// True when `path` is a file that can be opened for reading; false on any failure, a folder included.
bool FileExists(const std::string& path);

// True when `path` is a folder.
bool FolderExists(const std::string& path);

// Where the file or folder `name` (which may hold separators) under `folder` really is: the exact name when it is
// there, else the first, in sorted order, that differs from it in letter case only, each component of `name` for
// itself. The exact path when there is neither, so that an error names what was looked for.
std::string LocateIgnoringCase(const std::string& folder, std::string_view name);

// The person's folder that the environment's `variable` names, else `belowHome` below their home, with a separator at
// its end; empty when neither is known: a relative path in the environment is none.
std::string UserFolder(const char* variable, std::string_view belowHome);

// The names of a folder's entries, in the order in which the system gives them; its path starts from the open folder
// `at`. Throws RunTimeError when the folder cannot be read.
std::vector<std::string> FolderEntries(const std::string& folder, int at = AT_FDCWD);

// As FolderEntries, sorted ignoring case.
std::vector<std::string> ListFolder(const std::string& folder, int at = AT_FDCWD);

}  // namespace folionet
