#include "SettingsStore.h"

#include <sys/file.h>

#include <QFile>
#include <QSettings>
#include <cerrno>
#include <charconv>
#include <filesystem>
#include <system_error>

#include "BuildInfo.h"
#include "FileHandle.h"
#include "IniFormat.h"
#include "RunTimeError.h"
#include "SettingsKeys.h"

namespace folionet {
namespace {

QString ToQString(std::string_view text) { return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())); }

// A pipe in the place of the file would keep the program waiting, a device could fill its memory.
void CheckFile(const std::string& path, std::size_t longest) {
  std::error_code error;
  const std::filesystem::file_status status = std::filesystem::status(path, error);
  if (!std::filesystem::exists(status)) return;
  if (!std::filesystem::is_regular_file(status)) {
    throw RunTimeError(kPathFileAccessError, path, "It is not a regular file.");
  }
  if (const std::uintmax_t size = std::filesystem::file_size(path, error); !error && size > longest) {
    throw RunTimeError(kOutOfMemory, path, "The file is longer than " + std::to_string(longest) + " bytes.");
  }
}

// Our programs save one after the other, so that a lock file of QSettings' is what one of them left that was killed:
// QSettings might wait half a minute for it.
FileHandle TakeTurn(const std::string& folder, const std::string& lock) {
  FileHandle turn = FileHandle::Open(folder.c_str(), O_RDONLY | O_DIRECTORY);
  if (!turn.IsOpen()) return turn;
  int result = 0;
  do {
    result = flock(turn.Get(), LOCK_EX);
  } while (result != 0 && errno == EINTR);
  std::error_code ignored;
  if (result == 0) std::filesystem::remove(lock, ignored);
  return turn;
}

// A number's text without more digits than it needs: 12, 10.5
std::string PlainText(double value) {
  std::array<char, 32> buffer{};
  const auto result =
      std::to_chars(buffer.data(), buffer.data() + buffer.size(), static_cast<float>(value), std::chars_format::fixed);
  return {buffer.data(), result.ptr};
}

}  // namespace

SettingsStore::SettingsStore(const std::string& folder) : StoredSettings(folder) {}

SettingsStore::~SettingsStore() = default;

QSettings& SettingsStore::Area(std::string_view application) const {
  const auto found = m_areas.find(application);
  return found != m_areas.end() ? *found->second : OpenArea(application);
}

QSettings& SettingsStore::OpenArea(std::string_view application) const {
  const std::string path = FilePath(application);
  CheckFile(path, kLongestFile);
  errno = 0;
  auto area = std::make_unique<QSettings>(ToQString(path), VerbatimIniFormat());
  if (area->status() != QSettings::NoError || !IsWholeReading(*area)) {
    throw RunTimeError::FromErrno(errno != 0 ? errno : EIO, path);
  }
  return *m_areas.emplace(application, std::move(area)).first->second;
}

std::optional<std::string> SettingsStore::Stored(std::string_view application, const std::string& name) const {
  const QVariant value = Area(application).value(ToQString(name));
  return value.isValid() ? std::optional(value.toString().toStdString()) : std::nullopt;
}

void SettingsStore::SaveSetting(std::string_view application, std::string_view section, std::string_view key,
                                std::string_view value) {
  QSettings& area = Area(application);
  const std::string name = NameOf(section, key);
  m_unsaved.push_back({name, Stored(application, name)});
  area.setValue(ToQString(name), ToQString(value));
  if (!m_savesTogether) Sync(application);
}

void SettingsStore::Sync(std::string_view application) {
  QSettings& area = Area(application);
  const FileHandle turn = TakeTurn(Folder(), FilePath(application) + ".lock");
  errno = 0;
  area.sync();
  if (area.status() != QSettings::NoError) {
    const int systemError = errno != 0 ? errno : EACCES;
    Revert(area);
    throw RunTimeError::FromErrno(systemError, FilePath(application));
  }
  m_unsaved.clear();
}

// A refused value must not be tried again by every later one, nor be read as if it were stored.
void SettingsStore::Revert(QSettings& area) {
  while (!m_unsaved.empty()) {
    const UnsavedChange& last = m_unsaved.back();
    const QString name = ToQString(last.name);
    if (last.stored) {
      area.setValue(name, ToQString(*last.stored));
    } else {
      area.remove(name);
    }
    m_unsaved.pop_back();
  }
}

void SettingsStore::SaveTogether(const std::function<void()>& saves) {
  m_savesTogether = true;
  try {
    saves();
  } catch (...) {
    m_savesTogether = false;
    Revert(Area(kApplicationTitle));
    throw;
  }
  m_savesTogether = false;
  Sync(kApplicationTitle);
}

void SettingsStore::DeleteSetting(std::string_view application) {
  m_areas.erase(std::string(application));
  QFile file(ToQString(FilePath(application)));
  errno = 0;
  if (file.exists() && !file.remove()) {
    throw RunTimeError::FromErrno(errno != 0 ? errno : EACCES, FilePath(application));
  }
}

void SettingsStore::SaveText(std::string_view key, std::string_view value) {
  SaveSetting(kApplicationTitle, kSettingsSection, key, value);
}

void SettingsStore::SaveFlag(std::string_view key, bool value) { SaveText(key, value ? "1" : "0"); }

void SettingsStore::SaveBoolean(std::string_view key, bool value) { SaveText(key, value ? "True" : "False"); }

void SettingsStore::SaveInteger(std::string_view key, std::int32_t value) { SaveText(key, std::to_string(value)); }

void SettingsStore::SavePointSize(std::string_view key, double points) { SaveText(key, PlainText(points)); }

}  // namespace folionet
