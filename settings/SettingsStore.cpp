#include "SettingsStore.h"

#include <cerrno>
#include <cstdio>
#include <utility>

#include "BuildInfo.h"
#include "JointChange.h"
#include "MakeFolders.h"
#include "OptionTable.h"
#include "Paths.h"
#include "Replacement.h"
#include "RunTimeError.h"
#include "WholeFile.h"

namespace folionet {
namespace {

// Where a settings file is kept whose options are dropped. One that was kept before stays, and whatever is there.
std::string KeptPath(const std::string& path) {
  const std::string first = path + ".before-restore";
  std::string kept = first;
  for (int number = 2; IsThere(kept); ++number) {
    kept = first + "-" + std::to_string(number);
  }
  return kept;
}

// Keeps a settings file under the name KeptPath, while no other program saves it. A link, as a person's that keeps all
// settings in one place, stays, and leads to an empty file then.
void PutAside(const std::string& path, std::size_t longest) {
  if (!MayBeThere(path)) return;
  Replacement file(path);
  if (IsLink(path)) {
    ReplaceWholeFile(KeptPath(path), file.OldContent(longest).value_or(""));
    file.Prepare("");
    file.Commit();
  } else if (std::rename(path.c_str(), KeptPath(path).c_str()) != 0) {
    throw RunTimeError::FromErrno(errno, path);
  }
}

// One that stays, or that another program has begun to save, says the same.
void RemoveEmpty(const std::string& path) {
  try {
    const Replacement file(path);
    if (!IsLink(path) && file.OldContent(1) == "") std::remove(path.c_str());
  } catch (const RunTimeError&) {
    return;
  }
}

// The text of an option as it is saved: "+20" is "20". A text that has not the option's form as it is.
std::string InItsForm(std::string_view key, const std::string& text) {
  const Option* const option = FindOption(key);
  if (option == nullptr || CheckOption(option->form, text) != 0) return text;
  PageOptions options;
  SetOption(*option, text, options);
  return OptionText(*option, options);
}

}  // namespace

SettingsStore::SettingsStore(const std::string& folder) : StoredSettings(folder) {}

std::optional<std::string> SettingsStore::Stored(std::string_view application, const std::string& name) const {
  if (const auto unsaved = m_unsaved.find(application); unsaved != m_unsaved.end()) {
    if (const auto found = unsaved->second.find(name); found != unsaved->second.end()) return found->second;
  }
  return StoredSettings::Stored(application, name);
}

void SettingsStore::SaveSetting(std::string_view application, std::string_view section, std::string_view key,
                                std::string_view value) {
  m_unsaved[std::string(application)].insert_or_assign(IniName(section, key), std::string(value));
  if (!m_savesTogether || application != kApplicationTitle) Sync(application);
}

void SettingsStore::MakeFolder(std::string_view application) const {
  if (FilePath(application) == SitePath()) return;
  if (Folder().empty()) {
    throw RunTimeError(kPathNotFound, FilePath(kApplicationTitle), "HOME does not name a folder to save it in.")
        .About(Subject::kSettingsFile);
  }
  MakeFolderOf(FilePath(application));
}

// A refused value must not be tried again by every later one, nor be read as if it were stored.
IniChanges SettingsStore::TakeUnsaved(std::string_view application) {
  return std::exchange(m_unsaved[std::string(application)], {});
}

void SettingsStore::Sync(std::string_view application) {
  const IniChanges changed = TakeUnsaved(application);
  if (changed.empty()) return;
  MakeFolder(application);
  const std::string path = FilePath(application);
  // Another program may have saved since the file was read: what it changed is kept.
  std::string edited;
  WorkAbout(Subject::kSettingsFile, [&] {
    EditWholeFile(path, kLongestFile,
                  [&](const std::string& content) { return edited = EditIni(content, changed, path); });
  });
  Take(application, ParseIni(edited));
}

void SettingsStore::TrySaving() const {
  const std::string path = FilePath(kApplicationTitle);
  WorkAbout(Subject::kSettingsFile, [&] {
    TryReplacement(path);
    ParseIni(ReadIfThere(path, kLongestFile).value_or(""), path);
  });
}

void SettingsStore::Gather(const std::function<void()>& saves) {
  m_savesTogether = true;
  try {
    saves();
  } catch (...) {
    m_savesTogether = false;
    m_unsaved.clear();
    throw;
  }
  m_savesTogether = false;
}

void SettingsStore::SaveTogether(const std::function<void()>& saves) {
  Gather(saves);
  Sync(kApplicationTitle);
}

void SettingsStore::SaveTogether(const std::function<void()>& saves, JointChange& change) {
  Gather(saves);
  const IniChanges changed = TakeUnsaved(kApplicationTitle);
  MakeFolder(kApplicationTitle);
  const std::string path = FilePath(kApplicationTitle);
  std::string edited;
  change.Edit(path, kLongestFile, [&](const std::string& content) { return edited = EditIni(content, changed, path); });
  change.Commit();
  Take(kApplicationTitle, ParseIni(edited));
}

void SettingsStore::DeleteSetting(std::string_view application) {
  const std::string path = FilePath(application);
  if (!Folder().empty()) WorkAbout(Subject::kSettingsFile, [&] { PutAside(path, kLongestFile); });
  Take(application, {});
}

void SettingsStore::DeleteSettings(JointChange& change) {
  const std::string path = FilePath(kApplicationTitle);
  change.Replace(KeptPath(path), ReadIfThere(path, kLongestFile).value_or(""));
  change.Replace(path, "");
  change.Commit();
  RemoveEmpty(path);
  Take(kApplicationTitle, {});
}

// What the person's own settings do not have either is left out: the default of a charset, say, stands back behind the
// one that a text brings.
void SettingsStore::RestoreSite() {
  std::string edited;
  const std::string prefix = IniName(kSettingsSection, "");
  WorkAbout(Subject::kSettingsFile, [&] {
    EditWholeFile(SitePath(), kLongestFile, [&](const std::string& content) {
      ReplaceWholeFile(KeptPath(SitePath()), content);
      IniChanges changes;
      for (const auto& [name, value] : ParseIni(content, SitePath())) {
        if (name.starts_with(prefix)) changes.emplace(name, std::nullopt);
      }
      for (const Option& option : OptionTable()) {
        if (UserText(option.key))
          changes.insert_or_assign(prefix + std::string(option.key), std::string(option.defaultText));
      }
      return edited = EditIni(content, changes, SitePath());
    });
  });
  Take(kApplicationTitle, ParseIni(edited));
}

void SettingsStore::SaveText(std::string_view key, std::string_view value) {
  // A folder stays as a person wrote it, so that a site can move with its file; and the drive is that of the folder.
  if (key == "Dir1" && NamesStoredFolder(value)) return;
  if (!SitePath().empty() && (key == "Drive1" || InItsForm(key, Text(key)) == value)) return;
  SaveSetting(kApplicationTitle, kSettingsSection, key, value);
}

void SettingsStore::RemoveText(std::string_view key) {
  m_unsaved[std::string(kApplicationTitle)].insert_or_assign(IniName(kSettingsSection, key), std::nullopt);
  if (!m_savesTogether) Sync(kApplicationTitle);
}

}  // namespace folionet
