#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace folionet {

// The few things that are done to texts everywhere. Numbers.h has IsBlank and TrimBlanks.

// Of UTF-8, at a file's start; it is no part of the text.
inline constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

// With it older programs end a text file.
inline constexpr char kCtrlZ = 0x1A;

// `text` without the characters of `blanks` around it.
std::string_view Trimmed(std::string_view text, std::string_view blanks);

// The parts of a text that stand between separators; of an empty text none.
std::vector<std::string_view> SplitAt(std::string_view text, std::string_view separator);

// Whether a text is one of several.
bool IsOneOf(std::string_view text, std::initializer_list<std::string_view> texts);

// Of ASCII alone; every other character stays as it is.
inline char AsciiLower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c; }
std::string AsciiLower(std::string_view text);
inline char AsciiUpper(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - ('a' - 'A')) : c; }

inline bool IsDigit(char c) { return c >= '0' && c <= '9'; }
inline bool IsLetterOrDigit(char c) { return IsDigit(c) || (AsciiLower(c) >= 'a' && AsciiLower(c) <= 'z'); }

// The value of a hexadecimal digit, -1 for any other character.
int HexDigit(char c);

// Two digits, upper case.
std::string TwoHexDigits(unsigned char value);

// Adds a character as UTF-8; U+FFFD for what is none.
void AppendUtf8(std::string& text, char32_t character);

// Whether the character of a UTF-8 text at `at` is one that a terminal would obey: below a blank, U+007F to U+009F.
bool IsControl(std::string_view text, std::size_t at);

// A UTF-8 text with a blank for each line break, CR LF being one, and for each control character.
std::string InOneLine(std::string_view text);

// A UTF-8 text as a line shows it: each control character but those to keep as "\n", "\t", "\x1B" or "\u202E", so that
// nothing that an argument or a file brings is obeyed or passes for a line of the program's own.
std::string Escaped(std::string_view text, std::string_view kept = {});

// A text of a file, shortened to a length that a message can show, escaped, in double quotes. Bytes that are no UTF-8
// are taken for windows-1252.
std::string Quoted(std::string_view text);

}  // namespace folionet
