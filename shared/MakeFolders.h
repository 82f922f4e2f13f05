#pragma once

#include <sys/stat.h>

#include <string>

namespace folionet {

// What is done about a change of the file system: it is made, or it is only asked whether it could be.
enum class Doing { kChange, kPlan };

// Makes a folder, with those above it that are missing, or asks whether that could be done. Throws RunTimeError where
// that fails, or would fail.
void MakeFolders(const std::string& path, Doing doing);

// Makes the folder of a file if it can; making the file tells of a failure.
void MakeFolderOf(const std::string& file);

// Whether a file could be made in an open folder, as a value of errno: EEXIST when something has the name.
int WhyNotMake(int folder, const std::string& name);

// Whether a file could be taken away from an open folder, as a value of errno; `old` is of that file.
int WhyNotRemove(int folder, const std::string& name, const struct stat& old);

}  // namespace folionet
