#include "JointChange.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <cstring>
#include <optional>
#include <utility>

#include "FileHandle.h"
#include "FileLock.h"
#include "Numbers.h"
#include "Paths.h"
#include "RunTimeError.h"
#include "WholeFile.h"

namespace folionet {
namespace {

// A note: this line, then for each file four texts, each behind its length and a line break: the path, "new" or "old"
// for one that was missing or there, the old and the new content. "new pieces" and "old pieces": the new content is on
// its way beside the file, and its sum stands in its place.
constexpr std::string_view kFirstLine = "Folionet: a change of files, not finished\n";
constexpr std::string_view kPieces = " pieces";
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

// Tells a content from others, by its length and all of its bytes.
class ContentSum {
 public:
  static constexpr std::size_t kBlock = std::size_t{64} << 10;

  static std::string Of(std::string_view content) {
    ContentSum sum;
    for (; !content.empty(); content.remove_prefix(std::min(kBlock, content.size()))) {
      sum.Add(content.substr(0, kBlock));
    }
    return sum.Text();
  }

  // All blocks but the last have kBlock bytes.
  void Add(std::string_view block) {
    m_length += block.size();
    Words words{};
    for (; block.size() >= sizeof words; block.remove_prefix(sizeof words)) {
      std::memcpy(words.data(), block.data(), sizeof words);
      Mix(words);
    }
    words = {};
    std::memcpy(words.data(), block.data(), block.size());
    Mix(words);
  }

  std::string Text() const {
    std::string text = std::to_string(m_length);
    for (const std::uint64_t sum : m_sums) text += " " + std::to_string(sum);
    return text;
  }

 private:
  using Words = std::array<std::uint64_t, 4>;  // which do not wait for each other

  void Mix(const Words& words) {
    constexpr std::uint64_t kFactor = 0x9E3779B97F4A7C15;
    constexpr int kShift = 32;
    for (std::size_t i = 0; i < words.size(); ++i) {
      m_sums[i] = (m_sums[i] ^ words[i]) * kFactor;
      m_sums[i] ^= m_sums[i] >> kShift;
    }
  }

  std::size_t m_length = 0;
  Words m_sums{1, 2, 3, 4};
};

// A file of a note; no content stands for no file.
struct NotedFile {
  std::string path;
  std::optional<std::string> before;
  std::optional<std::string> after;
  bool isLost = false;  // the content after is neither in the file nor on its way
};

// The content with that sum, in the file or on its way to it.
std::optional<std::string> FindContent(const std::string& path, const std::string& sum) {
  for (const std::string& place : {path, OnItsWay(path)}) {
    auto content = ReadIfThere(place, kLongestNote);
    if (content && ContentSum::Of(*content) == sum) return content;
  }
  return std::nullopt;
}

// Nothing when it is no note.
std::optional<std::vector<NotedFile>> ReadNote(std::string_view rest) {
  if (!rest.starts_with(kFirstLine)) return std::nullopt;
  rest.remove_prefix(kFirstLine.size());
  std::vector<NotedFile> files;
  while (!rest.empty()) {
    std::array<std::string, 4> texts;  // path, "new" or "old", old and new content
    for (std::string& text : texts) {
      std::optional<std::string> taken = TakeText(rest);
      if (!taken) return std::nullopt;
      text = std::move(*taken);
    }
    auto before = texts[1].starts_with("new") ? std::optional<std::string>() : std::move(texts[2]);
    const bool isInPieces = texts[1].ends_with(kPieces);
    auto after = isInPieces ? FindContent(texts[0], texts[3]) : std::move(texts[3]);
    const bool isLost = !after;
    files.push_back({std::move(texts[0]), std::move(before), std::move(after), isLost});
  }
  return files;
}

std::optional<std::string> Carried(const NotedFile& file, const std::optional<std::string>& present,
                                   const CarryChange& carry) {
  if (!carry || !present) return std::nullopt;
  return carry(file.path, file.before.value_or(""), file.after.value_or(""), *present);
}

// Whether a file was saved since in a way that the change cannot be made in.
bool StandsInTheWay(const NotedFile& file, const CarryChange& carry) {
  const std::optional<std::string> present = ReadIfThere(file.path);
  return file.isLost || (present != file.before && present != file.after && !Carried(file, present, carry));
}

// Brings the file from its content before to that after.
void Complete(const NotedFile& file, const CarryChange& carry) {
  const std::optional<std::string> present = ReadIfThere(file.path);
  if (present == file.after) return;
  const std::optional<std::string> wanted = present == file.before ? file.after : Carried(file, present, carry);
  if (wanted) {
    ReplaceWholeFile(file.path, *wanted);
  } else if (present == file.before && unlink(file.path.c_str()) != 0) {
    throw RunTimeError::FromErrno(errno, file.path);
  }
}

void Apply(std::vector<NotedFile> files, const CarryChange& carry) {
  // What is on a disk that is away now was not removed since.
  for (const NotedFile& file : files) {
    if (!FolderExists(file.path.substr(0, file.path.rfind('/') + 1))) throw RunTimeError::FromErrno(ENOENT, file.path);
  }
  const bool isUndone =
      std::any_of(files.begin(), files.end(), [&](const NotedFile& file) { return StandsInTheWay(file, carry); });
  for (NotedFile& file : files) {
    if (isUndone) std::swap(file.before, file.after);
    Complete(file, carry);
  }
}

}  // namespace

JointChange::JointChange(std::string note) : m_note(std::move(note)) {}

void JointChange::Replace(const std::string& path, std::string_view bytes) {
  Edit(path, kLongestNote, [&](const std::string&) { return std::string(bytes); });
}

JointChange::Part JointChange::Begin(const std::string& path, std::size_t longest) {
  Part part;
  part.file = std::make_unique<Replacement>(path);
  const std::optional<std::string> old = part.file->OldContent(longest);
  part.isNew = !old;
  part.oldBytes = old.value_or("");
  return part;
}

void JointChange::Write(const std::string& path, const std::function<void(const Pieces& take)>& give) {
  Part part = Begin(path, kLongestNote);
  part.isInPieces = true;
  part.file->BeginContent();
  ContentSum sum;
  std::string block;
  const auto flush = [&] {
    sum.Add(block);
    part.file->AddContent(block);
    block.clear();
  };
  give([&](std::string_view piece) {
    while (!piece.empty()) {
      const std::size_t count = std::min(ContentSum::kBlock - block.size(), piece.size());
      block.append(piece, 0, count);
      piece.remove_prefix(count);
      if (block.size() == ContentSum::kBlock) flush();
    }
  });
  flush();
  part.file->EndContent();
  part.newBytes = sum.Text();
  m_parts.push_back(std::move(part));
}

void JointChange::Edit(const std::string& path, std::size_t longest,
                       const std::function<std::string(std::string content)>& edit) {
  Part part = Begin(path, longest);
  part.newBytes = edit(part.oldBytes);
  part.file->Prepare(part.newBytes);
  m_parts.push_back(std::move(part));
}

void JointChange::Commit() {
  std::string text(kFirstLine);
  for (const Part& part : m_parts) {
    AddText(text, part.file->Path());
    AddText(text, std::string(part.isNew ? "new" : "old").append(part.isInPieces ? kPieces : ""));
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

void FinishJointChange(const std::string& note, const CarryChange& carry) {
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
  auto files = ReadNote(ReadOpenFile(file, note, kLongestNote));
  if (!files)
    throw RunTimeError(kPathFileAccessError, note,
                       "It is no note of an unfinished change, or is damaged. Move it away.");
  Apply(std::move(*files), carry);
  if (unlink(note.c_str()) != 0 && errno != ENOENT) throw RunTimeError::FromErrno(errno, note);
}

}  // namespace folionet
