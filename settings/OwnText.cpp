#include "OwnText.h"

#include <unistd.h>

#include <algorithm>
#include <utility>

#include "KeptLetters.h"
#include "MakeFolders.h"
#include "Text.h"
#include "Utf16.h"
#include "Utf8.h"
#include "WholeFile.h"

namespace folionet {
namespace {

constexpr std::size_t kLongestText = std::size_t{64} << 20;

std::string PathOf(const OwnFolder& folder, std::string_view name) { return folder.path + std::string(name); }

std::string LettersPath(const OwnFolder& folder, std::string_view name) {
  return folder.path + "." + std::string(name) + ".utf-8";
}

// What a file holds, without a mark that would become part of its text.
struct Content {
  std::string bytes;
  CodePage codePage;
};

// Whether an editor has saved it in another way than ours: with a mark of UTF-8, or in UTF-16.
bool IsOfEditor(std::string_view bytes) { return bytes.starts_with(kByteOrderMark) || LooksUtf16(bytes); }

std::optional<Content> ReadContent(const OwnFolder& folder, std::string_view name) {
  std::optional<std::string> bytes = ReadIfThere(PathOf(folder, name));
  if (!bytes) return std::nullopt;
  if (LooksUtf16(*bytes)) return Content{FromUtf16(*bytes, PathOf(folder, name)), CodePage("utf-8")};
  if (!bytes->starts_with(kByteOrderMark)) return Content{std::move(*bytes), folder.codePage};
  while (bytes->starts_with(kByteOrderMark)) bytes->erase(0, kByteOrderMark.size());
  const bool isUtf8 = IsUtf8(*bytes);
  return Content{std::move(*bytes), isUtf8 ? CodePage("utf-8") : folder.codePage};
}

// The text beside the file.
std::optional<std::string> Letters(const OwnFolder& folder, std::string_view name) {
  return ReadIfThere(LettersPath(folder, name));
}

bool HoldsAllLetters(const CodePage& codePage, std::string_view text) {
  return codePage.Decode(codePage.Encode(text)) == text;
}

// Whether the file is in the folder's code page, so that what is in it can be added to it as it is.
bool IsInCodePage(const OwnFolder& folder, std::string_view name) {
  const std::optional<std::string> bytes = ReadIfThere(PathOf(folder, name));
  return !Letters(folder, name) && !(bytes && IsOfEditor(*bytes));
}

// The text that is to be in another code page. A file in UTF-8 without a mark is read as it stands; but its letters
// would be lost for good when it is written in another charset as it was read.
std::optional<std::string> TextToRecode(const OwnFolder& folder, std::string_view name) {
  const bool isWindows = folder.codePage.Name().starts_with("windows-125");  // where UTF-8 makes no words
  const std::optional<std::string> bytes = isWindows ? ReadIfThere(PathOf(folder, name)) : std::nullopt;
  const bool isUtf8 = bytes && !IsOfEditor(*bytes) && !IsAscii(*bytes) && IsUtf8(*bytes) && !Letters(folder, name);
  return isUtf8 ? bytes : ReadOwnText(folder, name);
}

// A text with another line, on a line of its own, at its end, which is a Ctrl+Z where there is one.
std::string WithLine(std::string text, std::string_view line) {
  const std::size_t end = std::min(text.find(kCtrlZ), text.size());
  const bool isLineOpen = end > 0 && text[end - 1] != '\n';
  return text.insert(end, (isLineOpen ? "\r\n" : "") + std::string(line));
}

}  // namespace

std::optional<std::string> ReadOwnText(const OwnFolder& folder, std::string_view name) {
  const std::optional<Content> content = ReadContent(folder, name);
  if (!content) return std::nullopt;
  std::string text = content->codePage.Decode(content->bytes);
  const std::optional<std::string> letters = Letters(folder, name);
  if (!letters) return text;
  return folder.codePage.Encode(*letters) == content->bytes ? *letters : WithLetters(*letters, folder.codePage, text);
}

void SaveOwnText(const OwnFolder& folder, std::string_view name, std::string_view text) {
  const std::string bytes = folder.codePage.Encode(text);
  const bool isWhole = HoldsAllLetters(folder.codePage, text);
  if (isWhole && !Letters(folder, name)) return ReplaceWholeFile(PathOf(folder, name), bytes);
  MakeFolderOf(folder.note);
  JointChange change(folder.note);
  change.Replace(LettersPath(folder, name), text);
  change.Replace(PathOf(folder, name), bytes);
  change.Commit();
  if (isWhole) unlink(LettersPath(folder, name).c_str());  // one that stays says the same as the file
}

void AddToOwnText(const OwnFolder& folder, std::string_view name, std::string_view line) {
  if (HoldsAllLetters(folder.codePage, line) && IsInCodePage(folder, name)) {
    return EditWholeFile(PathOf(folder, name), kLongestText, [&](std::string content) {
      return WithLine(std::move(content), folder.codePage.Encode(line));
    });
  }
  SaveOwnText(folder, name, WithLine(ReadOwnText(folder, name).value_or(""), line));
}

void RecodeOwnText(const OwnFolder& folder, std::string_view name, const CodePage& to, JointChange& change) {
  const std::optional<std::string> text = TextToRecode(folder, name);
  if (!text) return;
  if (!HoldsAllLetters(to, *text) || Letters(folder, name)) change.Replace(LettersPath(folder, name), *text);
  const std::string bytes = to.Encode(*text);
  if (bytes != ReadIfThere(PathOf(folder, name))) change.Replace(PathOf(folder, name), bytes);
}

}  // namespace folionet
