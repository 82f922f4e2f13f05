#include "JointChange.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <optional>
#include <utility>

#include "FileHandle.h"
#include "FileLock.h"
#include "Numbers.h"
#include "RunTimeError.h"
#include "WholeFile.h"

namespace folionet {
namespace {

// A note: this line, then for each file four texts, each behind its length and a line break: the path, "new" or "old"
// for one that was missing or there, the old and the new content.
constexpr std::string_view kFirstLine = "Folionet: a change of files, not finished\n";
constexpr std::size_t kLongestNote = std::size_t{512} << 20;

void AddText(std::string& note, std::string_view text) {
  note += std::to_string(text.size()) + "\n";
  note.append(text);
}

// Takes the next text off the rest of a note; nothing when the rest is no such text.
std::optional<std::string> TakeText(std::string_view& rest) {
  const std::size_t end = rest.find('\n');
  if (end == std::string_view::npos) return std::nullopt;
  const IntegerReading length = ReadInteger(rest.substr(0, end), 0, kInt32Max);
  rest.remove_prefix(end + 1);
  const auto size = static_cast<std::size_t>(length.value);
  if (length.error != 0 || size > rest.size()) return std::nullopt;
  std::string text(rest.substr(0, size));
  rest.remove_prefix(size);
  return text;
}

// Gives the file its new content where it has its old one still; none stands for no file.
void Complete(const std::string& path, const std::optional<std::string>& oldBytes, const std::string& newBytes) {
  if (ReadIfThere(path) == oldBytes) ReplaceWholeFile(path, newBytes);
}

// Applies a note; false when it is no note.
bool Apply(std::string_view rest) {
  if (!rest.starts_with(kFirstLine)) return false;
  rest.remove_prefix(kFirstLine.size());
  while (!rest.empty()) {
    std::array<std::string, 4> texts;  // path, "new" or "old", old and new content
    for (std::string& text : texts) {
      std::optional<std::string> taken = TakeText(rest);
      if (!taken) return false;
      text = std::move(*taken);
    }
    const auto oldBytes = texts[1] == "new" ? std::optional<std::string>() : std::move(texts[2]);
    Complete(texts[0], oldBytes, texts[3]);
  }
  return true;
}

}  // namespace

JointChange::JointChange(std::string note) : m_note(std::move(note)) {}

void JointChange::Replace(const std::string& path, std::string_view bytes) {
  Edit(path, kLongestNote, [&](const std::string&) { return std::string(bytes); });
}

void JointChange::Edit(const std::string& path, std::size_t longest,
                       const std::function<std::string(std::string content)>& edit) {
  Part part{std::make_unique<Replacement>(path), {}, {}, false};
  const std::optional<std::string> old = part.file->OldContent(longest);
  part.isNew = !old;
  part.oldBytes = old.value_or("");
  part.newBytes = edit(part.oldBytes);
  part.file->Prepare(part.newBytes);
  m_parts.push_back(std::move(part));
}

void JointChange::Commit() {
  std::string text(kFirstLine);
  for (const Part& part : m_parts) {
    AddText(text, part.file->Path());
    AddText(text, part.isNew ? "new" : "old");
    AddText(text, part.oldBytes);
    AddText(text, part.newBytes);
  }
  // Its lock is held to the end, so that a start meanwhile waits for it.
  Replacement note(m_note, S_IRUSR | S_IWUSR);
  note.Prepare(text);
  note.Commit();
  std::size_t done = 0;
  try {
    for (; done < m_parts.size(); ++done) m_parts[done].file->Commit();
  } catch (const RunTimeError&) {
    PutBack(done);
    throw;
  }
  // A note that stays finds the change made.
  unlink(m_note.c_str());
}

void JointChange::PutBack(std::size_t count) {
  try {
    for (std::size_t i = 0; i < count; ++i) {
      const Part& part = m_parts[i];
      if (!part.isNew) {
        ReplaceWholeFile(part.file->Path(), part.oldBytes);
      } else if (unlink(part.file->Path().c_str()) != 0) {
        return;
      }
    }
    unlink(m_note.c_str());
  } catch (const RunTimeError&) {
    // The note stays for the next start.
  }
}

void FinishJointChange(const std::string& note) {
  const FileHandle file = FileHandle::Open(note.c_str(), O_RDONLY | O_NONBLOCK | O_NOFOLLOW);
  if (!file.IsOpen()) {
    if (errno == ENOENT || errno == ENOTDIR) return;
    throw RunTimeError::FromErrno(errno, note);
  }
  if (!LockFile(file.Get(), kLongestWait)) {
    throw RunTimeError(kPermissionDenied, note,
                       LockHolder(file.Get()) + " is saving. Wait for that to end, and try again.");
  }
  struct stat status {};
  if (fstat(file.Get(), &status) != 0) throw RunTimeError::FromErrno(errno, note);
  if (status.st_nlink == 0) return;  // the program that was waited for has made the change itself
  if (!Apply(ReadOpenFile(file, note, kLongestNote))) {
    throw RunTimeError(kPathFileAccessError, note, "It is no note of an unfinished change. Remove it.");
  }
  if (unlink(note.c_str()) != 0 && errno != ENOENT) throw RunTimeError::FromErrno(errno, note);
}

}  // namespace folionet
