#include "OwnText.h"

#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>

#include "LineReader.h"
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

std::optional<Content> ReadContent(const OwnFolder& folder, std::string_view name) {
  std::optional<std::string> bytes = ReadIfThere(PathOf(folder, name));
  if (!bytes) return std::nullopt;
  if (!bytes->starts_with(kByteOrderMark)) return Content{std::move(*bytes), folder.codePage};
  while (bytes->starts_with(kByteOrderMark)) bytes->erase(0, kByteOrderMark.size());
  const bool isUtf8 = IsUtf8(*bytes);
  return Content{std::move(*bytes), isUtf8 ? CodePage("utf-8") : folder.codePage};
}

// The text beside the file, when it counts.
std::optional<std::string> Letters(const OwnFolder& folder, std::string_view name, const std::string& bytes) {
  std::optional<std::string> text = ReadIfThere(LettersPath(folder, name));
  return text && folder.codePage.Encode(*text) == bytes ? text : std::nullopt;
}

bool HoldsAllLetters(const CodePage& codePage, std::string_view text) {
  return codePage.Decode(codePage.Encode(text)) == text;
}

bool HasLettersFile(const OwnFolder& folder, std::string_view name) {
  return ReadIfThere(LettersPath(folder, name)).has_value();
}

// Whether the file is in the folder's code page, so that what is in it can be added to it as it is.
bool IsInCodePage(const OwnFolder& folder, std::string_view name) {
  const std::optional<std::string> bytes = ReadIfThere(PathOf(folder, name));
  return !HasLettersFile(folder, name) && !(bytes && bytes->starts_with(kByteOrderMark));
}

// A text with another line, on a line of its own, at its end, which is a Ctrl+Z where there is one.
std::string WithLine(std::string text, std::string_view line) {
  const std::size_t end = std::min(text.find('\x1A'), text.size());
  const bool isLineOpen = end > 0 && text[end - 1] != '\n';
  return text.insert(end, (isLineOpen ? "\r\n" : "") + std::string(line));
}

}  // namespace

OwnTextSource FindOwnText(const OwnFolder& folder, std::string_view name) {
  const std::optional<Content> content = ReadContent(folder, name);
  if (content && Letters(folder, name, content->bytes)) return {LettersPath(folder, name), CodePage("utf-8")};
  return {PathOf(folder, name), content ? content->codePage : folder.codePage};
}

std::optional<std::string> ReadOwnText(const OwnFolder& folder, std::string_view name) {
  const std::optional<Content> content = ReadContent(folder, name);
  if (!content) return std::nullopt;
  const std::optional<std::string> letters = Letters(folder, name, content->bytes);
  return letters ? letters : content->codePage.Decode(content->bytes);
}

void SaveOwnText(const OwnFolder& folder, std::string_view name, std::string_view text) {
  const std::string bytes = folder.codePage.Encode(text);
  const bool isWhole = HoldsAllLetters(folder.codePage, text);
  if (isWhole && !HasLettersFile(folder, name)) return ReplaceWholeFile(PathOf(folder, name), bytes);
  std::error_code ignored;
  std::filesystem::create_directories(std::filesystem::path(folder.note).parent_path(), ignored);
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
  const std::optional<std::string> text = ReadOwnText(folder, name);
  if (!text) return;
  if (!HoldsAllLetters(to, *text) || HasLettersFile(folder, name)) change.Replace(LettersPath(folder, name), *text);
  const std::string bytes = to.Encode(*text);
  if (bytes != ReadIfThere(PathOf(folder, name))) change.Replace(PathOf(folder, name), bytes);
}

}  // namespace folionet
