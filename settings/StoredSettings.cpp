#include "StoredSettings.h"

#include <unistd.h>

#include <filesystem>
#include <system_error>

#include "BuildInfo.h"
#include "JointChange.h"
#include "OptionTable.h"
#include "Paths.h"
#include "RunTimeError.h"
#include "SiteSettings.h"
#include "WholeFile.h"

namespace folionet {

StoredSettings::StoredSettings(const std::string& folder) : m_folder(folder.empty() ? folder : WithSeparator(folder)) {}

std::string StoredSettings::DefaultFolder() { return UserFolder("XDG_CONFIG_HOME", ".config"); }

std::string StoredSettings::OwnPath(std::string_view application) const {
  return m_folder + std::string(application) + ".ini";
}

std::string StoredSettings::FilePath(std::string_view application) const {
  return application == kApplicationTitle && !m_sitePath.empty() ? m_sitePath : OwnPath(application);
}

std::string StoredSettings::FileOf(std::string_view key) const {
  const bool isOwn = !m_sitePath.empty() && !Area(m_sitePath).contains(IniName(kSettingsSection, key)) && UserText(key);
  return isOwn ? OwnPath(kApplicationTitle) : FilePath(kApplicationTitle);
}

void StoredSettings::UseSite(const std::string& path) {
  std::error_code failed;
  const std::filesystem::path whole = std::filesystem::absolute(path, failed);
  const std::string text = WorkAbout(Subject::kSettingsFile, [&] { return ReadWholeFile(path, kLongestFile); });
  m_sitePath = failed ? path : whole.string();
  m_areas.insert_or_assign(m_sitePath, WorkAbout(Subject::kSettingsFile, [&] { return ParseIni(text, path); }));
}

std::string StoredSettings::SiteText(std::string_view key) const {
  return m_sitePath.empty() ? std::string() : FindIni(Area(m_sitePath), IniName(kSiteSection, key)).value_or("");
}

std::string StoredSettings::UnfinishedNote() const { return m_folder + "." + kApplicationTitle + ".unfinished"; }

std::string StoredSettings::ImportNote() const { return m_folder + "." + kApplicationTitle + ".import"; }

void StoredSettings::FinishChange() const {
  if (m_folder.empty()) return;
  try {
    FinishJointChange(ImportNote());
  } catch (const RunTimeError&) {
    // A library on a disk that is not there now may be on one later.
  }
  // Settings that were saved since get those keys that the change sets.
  const auto carry = [&](const std::string& path, const std::string& from, const std::string& to,
                         const std::string& present) -> std::optional<std::string> {
    std::error_code ignored;
    if (!std::filesystem::equivalent(path, OwnPath(kApplicationTitle), ignored)) return std::nullopt;
    return EditIni(present, ChangesBetween(ParseIni(from), ParseIni(to)), path);
  };
  try {
    FinishJointChange(UnfinishedNote(), carry);
  } catch (const RunTimeError& error) {
    const std::string folder = std::filesystem::path(UnfinishedNote()).parent_path().string();
    if (access(folder.c_str(), X_OK) != 0) {
      throw RunTimeError(error.Number(), folder,
                         error.Detail() + ". This folder holds the settings. Name one of your own by XDG_CONFIG_HOME.");
    }
    const std::string more =
        error.Item() == UnfinishedNote()
            ? " Where letters of the custom header, the custom footer or the lists of encodings are wrong then, save "
              "that "
              "file in the charset of the pages."
            : ". A change of the charset was broken off; it is completed once this file can be written.";
    throw RunTimeError(error.Number(), error.Item(), error.Detail() + more).About(Subject::kUnfinishedChange);
  }
  ReadAnew();
}

void StoredSettings::ReadAnew() const {
  try {
    const std::string path = OwnPath(kApplicationTitle);
    m_areas.insert_or_assign(path, ValuesOf(path));
    // A site's file that is away for a while has not lost its settings.
    if (!m_sitePath.empty()) m_areas.insert_or_assign(m_sitePath, ParseIni(ReadWholeFile(m_sitePath, kLongestFile)));
  } catch (const RunTimeError&) {
    // Where nothing was read before, the next reading tells.
  }
}

IniValues StoredSettings::ValuesOf(const std::string& path) const {
  return WorkAbout(Subject::kSettingsFile, [&] {
    const std::optional<std::string> text = m_folder.empty() ? std::nullopt : ReadIfThere(path, kLongestFile);
    return text ? ParseIni(*text, path) : IniValues();
  });
}

std::string StoredSettings::GetSetting(std::string_view application, std::string_view section, std::string_view key,
                                       std::string_view defaultText) const {
  if (application == kApplicationTitle && section == kSettingsSection) {
    if (const auto found = m_overrides.find(key); found != m_overrides.end()) return found->second;
  }
  return Stored(application, IniName(section, key)).value_or(std::string(defaultText));
}

const IniValues& StoredSettings::Area(const std::string& path) const {
  const auto area = m_areas.find(path);
  return area != m_areas.end() ? area->second : m_areas.emplace(path, ValuesOf(path)).first->second;
}

std::optional<std::string> StoredSettings::Stored(std::string_view application, const std::string& name) const {
  const std::string path = FilePath(application);
  if (path != m_sitePath) return FindIni(Area(path), name);
  const std::string folder = IniName(kSettingsSection, "Dir1");
  // A site's folder is on the drive that it is on.
  if (name == IniName(kSettingsSection, "Drive1") && FindIni(Area(path), folder)) return std::nullopt;
  const std::optional<std::string> value = FindIni(Area(path), name);
  if (value) return name == folder ? FolderOfSite(*value, path) : value;
  return FindIni(Area(OwnPath(application)), name);
}

void StoredSettings::Take(std::string_view application, IniValues values) const {
  m_areas.insert_or_assign(FilePath(application), std::move(values));
}

void StoredSettings::Override(std::string_view key, std::string value) {
  m_overrides.insert_or_assign(std::string(key), std::move(value));
}

std::optional<std::string> StoredSettings::UserText(std::string_view key) const {
  return FindIni(Area(OwnPath(kApplicationTitle)), IniName(kSettingsSection, key));
}

bool StoredSettings::Has(std::string_view key) const {
  return m_overrides.contains(key) || Stored(kApplicationTitle, IniName(kSettingsSection, key)).has_value();
}

bool StoredSettings::NamesStoredFolder(std::string_view folder) const {
  const std::string path = FilePath(kApplicationTitle);
  const std::optional<std::string> stored = FindIni(Area(path), IniName(kSettingsSection, "Dir1"));
  return stored && IsSameFolder(path == m_sitePath ? FolderOfSite(*stored, path) : *stored, folder);
}

std::string StoredSettings::Text(std::string_view key) const {
  const Option* option = FindOption(key);
  return GetSetting(kApplicationTitle, kSettingsSection, key,
                    option != nullptr ? option->defaultText : std::string_view());
}

}  // namespace folionet
