#pragma once

#include <QObject>
#include <QString>
#include <QStringList>
#include <QWidget>
#include <map>

#include "SettingsStore.h"

namespace folionet {

// What the forms remember beside the options, in a file of its own, "FolionetForms.ini": the last addresses of index
// pages, output folders and files of sites, and the sizes and places of windows. That it cannot be read or written is
// no failure.
class FormMemory : public QObject {
  Q_OBJECT

 public:
  explicit FormMemory(SettingsStore& store, QObject* parent = nullptr) : QObject(parent), m_store(store) {}

  // The last texts of that kind, the latest first.
  QStringList Recent(const char* kind) const;
  void Add(const char* kind, const QString& text);

  // From now on the window opens where and as large as it was when it was last closed, within the screens that are
  // there; else as large as it asks for and the screen has room.
  void KeepPlace(QWidget& window);

  void Save();

  // Forgets everything, in the file too.
  void Forget();

  static constexpr char kAddresses[] = "Addresses";
  static constexpr char kFolders[] = "Folders";
  static constexpr char kSites[] = "Sites";

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QString Text(const QString& key) const;
  void Place(QWidget& window);

  SettingsStore& m_store;
  std::map<QString, QString> m_changed;  // since the last saving, by key
};

}  // namespace folionet
