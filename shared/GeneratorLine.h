#pragma once

#include <cstddef>
#include <string_view>

#include "FileHandle.h"

namespace folionet {

// What the GENERATOR line of every page begins with, before the version: it tells our pages from all others.
inline constexpr std::string_view kGenerator = "Versalia Folionet Ver ";

// So much of a file shows whether it is a page of ours.
inline constexpr std::size_t kGeneratorHead = 512;

// Whether a file that begins like this is a page of ours, also one that an editor has been at.
bool IsOurPage(std::string_view head);

// Whether an open file is a regular one and a page of ours; false also for one that is not open or cannot be read.
bool IsOurPage(const FileHandle& file);

// Whether a file of this name is a page, ours or not: its ending is .html or .htm, in letters of any case.
bool IsHtmlName(std::string_view name);

}  // namespace folionet
