#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "StoredSettings.h"

namespace folionet {

class JointChange;

// The per-user store of option texts, to be read and written. While a site's file is in use our own keys are saved in
// that file.
class SettingsStore : public StoredSettings {
 public:
  // `folder` is where the files are; it is made when something is first saved.
  explicit SettingsStore(const std::string& folder);

  // Stores a text at once. Throws RunTimeError when the file cannot be written; its old content then stands.
  void SaveSetting(std::string_view application, std::string_view section, std::string_view key,
                   std::string_view value);

  // Calls `saves`, whose savings of our own keys reach the file all together at its end, or none of them does.
  void SaveTogether(const std::function<void()>& saves);

  // The same as a part of a change of several files: the settings are the last of them to be replaced.
  void SaveTogether(const std::function<void()>& saves, JointChange& change);

  // Throws RunTimeError where nothing could be stored; nothing is.
  void TrySaving() const;

  // Removes an application's whole area; its file is kept beside as "<file>.before-restore", or as the first of
  // "<file>.before-restore-2" and so on that is not there yet. A link stays, and the file that it leads to is emptied.
  // Throws RunTimeError when that fails, and everything is as it was.
  void DeleteSetting(std::string_view application);

  // The same of our own area as a part of a change of several files, which it makes.
  void DeleteSettings(JointChange& change);

  // Gives every option of the site's file its default and keeps the file as it was beside, under a name as above.
  // Throws RunTimeError, and the file is as it was.
  void RestoreSite();

  // Stores one of our own keys, but in a site's file none that is as it should be already, there or in the person's own
  // settings, and no folder that merely is written in another way.
  void SaveText(std::string_view key, std::string_view value);

  // Stores one of our own keys no longer; in a site's file, what the person's own settings have of it holds again.
  // Throws as SaveSetting.
  void RemoveText(std::string_view key);

 protected:
  std::optional<std::string> Stored(std::string_view application, const std::string& name) const override;

 private:
  void Gather(const std::function<void()>& saves);
  void MakeFolder(std::string_view application) const;
  void Sync(std::string_view application);
  IniChanges TakeUnsaved(std::string_view application);

  std::map<std::string, IniChanges, std::less<>> m_unsaved;  // by application, what was set since the last saving
  bool m_savesTogether = false;
};

}  // namespace folionet
