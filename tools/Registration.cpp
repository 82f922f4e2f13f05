#include "Registration.h"

#include <QDir>
#include <QSettings>
#include <QString>
#include <cstdlib>

#include "LibraryError.h"
#include "LibraryFiles.h"

namespace folionet::tools {

namespace fs = std::filesystem;

namespace {

void Check(const QSettings& store, const fs::path& settings, const std::string& action) {
  if (store.status() == QSettings::NoError) return;
  const char* const reason =
      store.status() == QSettings::FormatError ? "it is no INI file" : "access to it or to its folder is denied";
  throw LibraryError(settings.string() + ": cannot " + action + ": " + reason);
}

}  // namespace

fs::path VersaliaSettingsFile() {
  const char* const given = std::getenv("XDG_CONFIG_HOME");
  fs::path folder = given == nullptr ? "" : given;
  if (!folder.is_absolute()) folder = fs::path(QDir::homePath().toStdString()) / ".config";
  return folder / "Versalia.ini";
}

bool CanRegister(const std::string& folder) { return folder.find_first_of("\"\\") == std::string::npos; }

void RegisterLibrary(const fs::path& settings, const std::string& folder) {
  MakeFolder(settings.parent_path());
  QSettings store(QString::fromStdString(settings.string()), QSettings::IniFormat);
  // The store parses its file when it is first asked; one that it does not understand must not be written over.
  store.allKeys();
  Check(store, settings, "read it");
  store.setValue("Module_Path/VersaliaPath", QString::fromStdString(folder));
  store.setValue("Module_Path/ModulePath", QString::fromStdString(folder + "Modules/"));
  store.sync();
  Check(store, settings, "write it");
}

}  // namespace folionet::tools
