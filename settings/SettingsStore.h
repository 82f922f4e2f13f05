#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "StoredSettings.h"

class QSettings;

namespace folionet {

// The per-user store of option texts, to be read and written, through QSettings.
class SettingsStore : public StoredSettings {
 public:
  // `folder` is where the files are; it is made when something is first saved.
  explicit SettingsStore(const std::string& folder);
  ~SettingsStore() override;

  // Stores a text at once. Throws RunTimeError when the file cannot be written; its old content then stands.
  void SaveSetting(std::string_view application, std::string_view section, std::string_view key,
                   std::string_view value);

  // Calls `saves`, whose savings of our own keys reach the file all together at its end, or none of them does.
  void SaveTogether(const std::function<void()>& saves);

  // Removes an application's whole area. Throws RunTimeError when its file cannot be removed.
  void DeleteSetting(std::string_view application);

  // Typed writing of our own keys.
  void SaveText(std::string_view key, std::string_view value);
  void SaveFlag(std::string_view key, bool value);
  void SaveBoolean(std::string_view key, bool value);
  void SaveInteger(std::string_view key, std::int32_t value);
  void SavePointSize(std::string_view key, double points);

 protected:
  std::optional<std::string> Stored(std::string_view application, const std::string& name) const override;

 private:
  QSettings& Area(std::string_view application) const;
  QSettings& OpenArea(std::string_view application) const;
  void Sync(std::string_view application);
  void Revert(QSettings& area);

  mutable std::map<std::string, std::unique_ptr<QSettings>, std::less<>> m_areas;
  bool m_savesTogether = false;

  // A key that was set since the last saving, with what was stored before, if anything.
  struct UnsavedChange {
    std::string name;
    std::optional<std::string> stored;
  };
  std::vector<UnsavedChange> m_unsaved;
};

}  // namespace folionet
