#include "StoredSettings.h"

#include "BuildInfo.h"
#include "JointChange.h"
#include "OptionTable.h"
#include "Paths.h"
#include "RunTimeError.h"
#include "WholeFile.h"

namespace folionet {

StoredSettings::StoredSettings(const std::string& folder) : m_folder(folder.empty() ? folder : WithSeparator(folder)) {}

std::string StoredSettings::DefaultFolder() { return UserFolder("XDG_CONFIG_HOME", ".config"); }

std::string StoredSettings::FilePath(std::string_view application) const {
  return m_folder + std::string(application) + ".ini";
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
  WorkAbout(Subject::kSettingsFile, [&] { FinishJointChange(UnfinishedNote()); });
}

std::string StoredSettings::GetSetting(std::string_view application, std::string_view section, std::string_view key,
                                       std::string_view defaultText) const {
  if (application == kApplicationTitle && section == kSettingsSection) {
    if (const auto found = m_overrides.find(key); found != m_overrides.end()) return found->second;
  }
  return Stored(application, NameOf(section, key)).value_or(std::string(defaultText));
}

std::string StoredSettings::NameOf(std::string_view section, std::string_view key) {
  return std::string(section).append("/").append(key);
}

std::optional<std::string> StoredSettings::Stored(std::string_view application, const std::string& name) const {
  auto area = m_areas.find(application);
  if (area == m_areas.end()) {
    const std::optional<std::string> text = m_folder.empty() ? std::nullopt : WorkAbout(Subject::kSettingsFile, [&] {
      return ReadIfThere(FilePath(application), kLongestFile);
    });
    area = m_areas.emplace(application, text ? ParseIni(*text) : IniValues()).first;
  }
  const auto found = area->second.find(name);
  return found == area->second.end() ? std::nullopt : std::optional(found->second);
}

void StoredSettings::Take(std::string_view application, IniValues values) const {
  m_areas.insert_or_assign(std::string(application), std::move(values));
}

void StoredSettings::Override(std::string_view key, std::string value) {
  m_overrides.insert_or_assign(std::string(key), std::move(value));
}

std::optional<std::string> StoredSettings::StoredText(std::string_view key) const {
  return Stored(kApplicationTitle, NameOf(kSettingsSection, key));
}

bool StoredSettings::Has(std::string_view key) const {
  return m_overrides.contains(key) || StoredText(key).has_value();
}

std::string StoredSettings::Text(std::string_view key) const {
  const Option* option = FindOption(key);
  return GetSetting(kApplicationTitle, kSettingsSection, key,
                    option != nullptr ? option->defaultText : std::string_view());
}

}  // namespace folionet
