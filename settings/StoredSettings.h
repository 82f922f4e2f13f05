#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "IniText.h"

namespace folionet {

// Where our own keys stand.
inline constexpr std::string_view kSettingsSection = "Keys";

// The per-user option texts, to be read: one INI file "<application>.ini" per application name in one folder, in the
// form that IniText.h tells. All texts are UTF-8.
class StoredSettings {
 public:
  // A longer settings file is not read.
  static constexpr std::size_t kLongestFile = std::size_t{16} << 20;

  // `folder` is where the files are; empty when there is none: then nothing is stored, and nothing can be.
  explicit StoredSettings(const std::string& folder);
  virtual ~StoredSettings() = default;
  StoredSettings(const StoredSettings&) = delete;
  StoredSettings& operator=(const StoredSettings&) = delete;

  // $XDG_CONFIG_HOME, or ~/.config; empty when the environment names neither.
  static std::string DefaultFolder();

  // The stored text, or `defaultText` when the key is missing. This and every routine below throws RunTimeError when
  // the application's file is there and cannot be read.
  std::string GetSetting(std::string_view application, std::string_view section, std::string_view key,
                         std::string_view defaultText) const;

  // Takes a site's file (SiteSettings.h) for what our own keys are read from where it holds them, before the person's
  // own settings, and for what they are saved in. Throws RunTimeError when it cannot be read.
  void UseSite(const std::string& path);

  // Its whole path; empty for none.
  const std::string& SitePath() const { return m_sitePath; }

  // What the site's file holds beside our own keys; empty when that is missing, or there is no site.
  std::string SiteText(std::string_view key) const;

  // The file that an application's texts are saved in.
  std::string FilePath(std::string_view application) const;

  // The file that a key of our own is stored in, or would be.
  std::string FileOf(std::string_view key) const;

  // The path of the note of a change of several files that is not finished; see JointChange.h.
  std::string UnfinishedNote() const;

  // The path of the same for the library that an import writes.
  std::string ImportNote() const;

  // Completes such changes, which a program that was killed has left. Throws RunTimeError for that of our own files;
  // that of a library, which may be gone, stays when it cannot be made.
  void FinishChange() const;

  // Reads the person's own settings and the site's file anew, which another program may have saved since. Where that
  // fails what was read before stands.
  void ReadAnew() const;

  // Gives a key of our own a value for this run only: it is read as if stored and never written.
  void Override(std::string_view key, std::string value);

  // Whether a key of our own has a value for this run only.
  bool IsOverridden(std::string_view key) const { return m_overrides.find(key) != m_overrides.end(); }

  // The text of a key of our own in the person's own settings, whatever a site or the run has in its place; nothing
  // when none is stored.
  std::optional<std::string> UserText(std::string_view key) const;

  // Whether a key of our own is stored, by the site or the person, or overridden.
  bool Has(std::string_view key) const;

  // Whether the file that "Dir1" is saved in has this folder there already, be it in other words: a relative path, or
  // with another separator at its end.
  bool NamesStoredFolder(std::string_view folder) const;

  // The text of an option, or its default.
  std::string Text(std::string_view key) const;

 protected:
  // The value stored under IniName's name; nothing when there is none. The file is read once.
  virtual std::optional<std::string> Stored(std::string_view application, const std::string& name) const;

  // Takes what a file holds now in the place of what was read.
  void Take(std::string_view application, IniValues values) const;

  const std::string& Folder() const { return m_folder; }

 private:
  // An area is a file by its name.
  const IniValues& Area(const std::string& path) const;
  IniValues ValuesOf(const std::string& path) const;
  std::string OwnPath(std::string_view application) const;

  std::string m_folder;
  std::string m_sitePath;
  mutable std::map<std::string, IniValues, std::less<>> m_areas;
  std::map<std::string, std::string, std::less<>> m_overrides;
};

}  // namespace folionet
