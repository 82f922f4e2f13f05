#include "ChangeJournal.h"

#include <unistd.h>

#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <string_view>

#include "BuildInfo.h"
#include "FileHandle.h"
#include "FileLock.h"
#include "MakeFolders.h"
#include "Paths.h"
#include "RunTimeError.h"
#include "WholeFile.h"

namespace folionet {
namespace {

constexpr char kDoubtful = '/';  // with which no name begins
constexpr std::size_t kLongest = std::size_t{16} << 20;

// One number for each folder, whatever way leads to it (FNV-1a of its real path).
std::string JournalPath(const std::string& stateFolder, const std::string& realFolder) {
  if (stateFolder.empty() || realFolder.empty()) return {};
  std::uint64_t number = 0xCBF29CE484222325U;
  for (const char c : realFolder) {
    number = (number ^ static_cast<unsigned char>(c)) * 0x100000001B3U;
  }
  return WithSeparator(stateFolder) + std::to_string(number) + ".changes";
}

}  // namespace

ChangeJournal::ChangeJournal(const std::string& stateFolder, const std::string& realFolder)
    : m_path(JournalPath(stateFolder, realFolder)) {
  if (m_path.empty()) return;
  std::string text;
  try {
    const FileHandle file = FileHandle::Open(m_path.c_str(), O_RDONLY | O_NONBLOCK);
    if (!file.IsOpen() && (errno == ENOENT || errno == ENOTDIR)) return;
    if (file.IsOpen() && IsLockHeld(file.Get())) m_holder = LockHolder(file.Get());
    text = ReadOpenFile(file, m_path, kLongest);
  } catch (const RunTimeError& error) {
    m_trouble = error.what();
    m_knowsPending = false;
    return;
  }
  // A line without an end was on its way when the program was killed, before its file was changed.
  m_whole = text.rfind('\n') + 1;
  m_isCut = text.find('\0') < m_whole;
  if (m_isCut) std::erase(text, '\0');
  std::string_view rest = text;
  for (std::size_t end = rest.find('\n'); end != std::string_view::npos; end = rest.find('\n')) {
    const bool isDoubtful = rest.starts_with(kDoubtful);
    const std::string name(rest.substr(isDoubtful ? 1 : 0, end - (isDoubtful ? 1 : 0)));
    rest.remove_prefix(end + 1);
    if (m_doubtful.insert_or_assign(name, isDoubtful).second) m_pending.push_back(name);
  }
}

bool ChangeJournal::IsDoubtful(const std::string& name) const {
  const auto known = m_doubtful.find(name);
  return known != m_doubtful.end() && known->second;
}

bool ChangeJournal::Open() {
  if (m_file.IsOpen()) return true;
  MakeFolderOf(m_path);
  return m_file.Open(m_path, m_whole);
}

void ChangeJournal::Add(const std::string& line) {
  if (m_path.empty() || !m_trouble.empty()) return;
  const bool isOpen = Open();
  if (!isOpen && errno == EBUSY) {
    throw RunTimeError(kPermissionDenied, m_path, "Another program has begun to write into the output folder.");
  }
  if (!isOpen || !m_file.Add(line)) m_trouble = RunTimeError::FromErrno(errno, m_path).what();
}

std::string ChangeJournal::Trouble() const {
  if (!m_trouble.empty() || (!m_isCut && (!m_file.IsOpen() || m_file.IsWhole()))) return m_trouble;
  return RunTimeError(kPathFileAccessError, m_path, "Another program has cut it.").what();
}

void ChangeJournal::WillChange(const std::string& name) {
  const auto [known, isFirst] = m_doubtful.try_emplace(name, false);
  if (isFirst || known->second) Add(name + "\n");
}

void ChangeJournal::CouldNotClose(const std::string& name) { Add(kDoubtful + name + "\n"); }

void ChangeJournal::Forget() {
  if (!m_file.IsOpen()) return;
  try {
    std::string text;
    for (const std::string& name : m_pending) text += name + "\n";
    if (text.empty()) {
      unlink(m_path.c_str());
    } else {
      ReplaceWholeFile(m_path, text);
    }
  } catch (const RunTimeError&) {
    // What is not forgotten comes in the next list, once too often.
  }
}

void ChangeJournal::ForgetAll() {
  const bool isThere = m_file.IsOpen() || m_whole > 0;
  if (isThere && Open()) unlink(m_path.c_str());
}

std::string UserStateFolder() {
  const std::string folder = UserFolder("XDG_STATE_HOME", ".local/state");
  return folder.empty() ? folder : folder + kApplicationTitle;
}

}  // namespace folionet
