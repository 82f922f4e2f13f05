#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace folionet {

// The values of an INI text by "section/key"; those before the first section have the key only.
using IniValues = std::map<std::string, std::string, std::less<>>;

std::string IniName(std::string_view section, std::string_view key);
std::optional<std::string> FindIni(const IniValues& values, std::string_view name);

// Reads an INI text whose values stand as they are, commas and backslashes included:
//
//   [Keys]
//   chkCSS=1
//   Keywords=%bible%, Online Bible
//
// A value in double quotes is what they enclose, with \", \\, \r, \n and \t inside. Blanks around keys and values do
// not count; lines that begin with ";" or "#", and those without "=", are passed over; of two values for one key the
// last holds. A line that is not UTF-8 is windows-1252; lines may all end in CR alone; all of it may be UTF-16. Throws
// RunTimeError, which names `path`, for UTF-16 that is cut off; any other text can be read.
IniValues ParseIni(std::string_view text, const std::string& path = {});

// What some values are to become; nothing for one that goes.
using IniChanges = std::map<std::string, std::optional<std::string>, std::less<>>;

// The text with these changes. Every other line stays as it is written, notes and lines that say nothing to us
// included; UTF-16 becomes UTF-8, without its mark. A new value stands before the next one by name of its section, as
// it is or, where it begins or ends with a blank, or holds a quote, a line break or NUL, in double quotes. Throws as
// ParseIni.
std::string EditIni(std::string_view text, const IniChanges& changes, const std::string& path = {});

// The changes that lead from some values to others.
IniChanges ChangesBetween(const IniValues& from, const IniValues& to);

}  // namespace folionet
