#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "InputFiles.h"

namespace folionet {

// The bytes by which IsArchive tells an archive.
inline constexpr std::size_t kArchiveHead = 512;

// Whether a file that begins with these bytes is an archive that ForEachEntry reads.
bool IsArchive(std::string_view head);

// Reads the archive `file` through libarchive, and gives each file in it to `take`. Throws RunTimeError.
void ForEachEntry(const std::string& file, ByteSource& bytes, const std::function<void(const InputFile&)>& take);

}  // namespace folionet
