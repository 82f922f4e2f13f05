#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Colours.h"

class QSettings;

namespace folionet {

// The per-user store of option texts, one INI file "<application>.ini" per application name in one folder:
//
//   [Keys]
//   chkCSS=1
//   Keywords=%bible%, Online Bible
//
// A value stands as it is, commas and backslashes included; one that begins or ends with a blank, or holds a quote or a
// line break, is written in double quotes with \", \\, \r and \n inside. All texts are UTF-8.
class SettingsStore {
 public:
  // `folder` is where the files are; it is made when something is first saved.
  explicit SettingsStore(const std::string& folder);
  ~SettingsStore();
  SettingsStore(const SettingsStore&) = delete;
  SettingsStore& operator=(const SettingsStore&) = delete;

  // $XDG_CONFIG_HOME, or ~/.config.
  static std::string DefaultFolder();

  // The stored text, or `defaultText` when the key is missing. This and every routine below throws RunTimeError when
  // the application's file is there and cannot be read.
  std::string GetSetting(std::string_view application, std::string_view section, std::string_view key,
                         std::string_view defaultText) const;

  // Stores a text at once. Throws RunTimeError when the file cannot be written; its old content then stands.
  void SaveSetting(std::string_view application, std::string_view section, std::string_view key,
                   std::string_view value);

  // Calls `saves`, whose savings of our own keys reach the file all together at its end, or none of them does.
  void SaveTogether(const std::function<void()>& saves);

  // Removes an application's whole area. Throws RunTimeError when its file cannot be removed.
  void DeleteSetting(std::string_view application);

  std::string FilePath(std::string_view application) const;

  // Gives a key of our own a value for this run only: it is read as if stored and never written.
  void Override(std::string_view key, std::string value);

  // Whether a key of our own is stored or overridden.
  bool Has(std::string_view key) const;

  // Typed reading and writing of our own keys, with the defaults of the table of keys. A stored text that has not the
  // key's form throws RunTimeError (kTypeMismatch, kOverflow or kInvalidProcedureCall) naming file, key and text.
  std::string Text(std::string_view key) const;
  bool Flag(std::string_view key) const;
  bool Boolean(std::string_view key) const;
  Colour ColourOf(std::string_view key) const;
  std::int16_t Number(std::string_view key) const;
  double PointSize(std::string_view key) const;

  void SaveText(std::string_view key, std::string_view value);
  void SaveFlag(std::string_view key, bool value);
  void SaveBoolean(std::string_view key, bool value);
  void SaveInteger(std::string_view key, std::int32_t value);
  void SavePointSize(std::string_view key, double points);

 private:
  QSettings& Area(std::string_view application) const;
  QSettings& OpenArea(std::string_view application) const;
  void Sync(std::string_view application);
  void Revert(QSettings& area);
  std::string Checked(std::string_view key) const;

  std::string m_folder;
  mutable std::map<std::string, std::unique_ptr<QSettings>, std::less<>> m_areas;
  bool m_savesTogether = false;

  // A key that was set since the last saving, with what was stored before, if anything.
  struct UnsavedChange {
    std::string name;
    std::optional<std::string> stored;
  };
  std::vector<UnsavedChange> m_unsaved;
  std::map<std::string, std::string, std::less<>> m_overrides;
};

}  // namespace folionet
