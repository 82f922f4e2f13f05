#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QEvent>
#include <QFont>
#include <QFontDatabase>
#include <QList>
#include <QWidget>
#include <filesystem>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "AppState.h"
#include "QtText.h"
#include "ScriptedUi.h"
#include "TemporaryFolder.h"

namespace folionet {

class frmMain;
using Log = std::vector<std::string>;

// A home of its own with a small library that Versalia's settings name, and starts of the main form in it:
//
//   Small Bible  SMALL  Book1 1 (3 verses), 2 (2 verses); Book2 1 (1 verse)
//   Other Bible  OTHER  Book1 1 (1 verse)
//
// The titles are Book1..Book66 in BOOKS.TXT and BOOKS_ENGLISH.TXT, Boek1..Boek66 in BOOKS_DUTCH.TXT. Controls of the
// main form go by their names, those of a dialog by "frmEffects.cmdClose", a form itself by "frmEffects.".
class FormTest : public testing::Test {
 protected:
  FormTest();
  ~FormTest() override;

  // A start of the program up to the shown form; what the run before had is dropped. False when it must end.
  bool Start();
  void Exit();  // by the button, with everything saved
  // The form and its dialogs, also those that are made when they are opened.
  QList<QWidget*> AllForms() const;

  template <typename Widget = QWidget>
  Widget& Get(const std::string& name) const {
    auto* widget = dynamic_cast<Widget*>(&Find(name));
    if (widget == nullptr) throw std::runtime_error(name + " is of another type");
    return *widget;
  }
  bool IsEnabled(const std::string& name) const { return Find(name).isEnabled(); }
  bool IsShown(const std::string& name) const { return Find(name).isVisible(); }

  // What a person sees: a text, a caption with its description, or "1" and "0" of a check box.
  std::string Shown(const std::string& name) const;

  std::string Items(const std::string& list) const;  // a line each

  void Click(const std::string& name) const;
  // Types a text, picks a list's entry, or clicks a button with `text` as the answer to what it asks.
  void Give(const std::string& name, const std::string& text);
  static void Key(QWidget& control, QEvent::Type type, int key);

  // Makes the form ready to compile into "site/".
  void ChooseOutput(const char* address = "index.html");

  // What the settings file holds, "<missing>" for a key that is not stored.
  std::string Stored(const std::string& key) const;
  void Store(const std::string& key, const std::string& text) const;
  // Makes every later saving of settings fail: their folder's name is taken by a file.
  void BlockSettings() const;
  void Remove(const std::string& name) const { std::filesystem::remove_all(m_home.Path() + name); }

  test::TemporaryFolder m_home;
  GivenFolders m_given;
  std::string m_site;     // the file of the next start
  test::ScriptedUi m_ui;  // answers are kept from one start to the next
  std::unique_ptr<SettingsStore> m_store;
  std::unique_ptr<AppState> m_state;
  std::unique_ptr<frmMain> m_form;
  Log m_opened;                              // dialogs, in their order
  std::function<void(QWidget&)> m_whenOpen;  // what a person does in a dialog of the main form
  bool m_hasEnded = false;
  std::function<void(const std::string& path)> m_disk;  // what is asked in the place of disks, without patience

 private:
  QWidget& Find(const std::string& name) const;
};

// In a font that many desktops have; skipped by its name where that is not installed.
class InFont : public FormTest, public testing::WithParamInterface<const char*> {
 public:
  static std::string NameOf(const testing::TestParamInfo<const char*>& font) {
    return FromQt(QString::fromLatin1(font.param).remove(QLatin1Char(' ')));
  }

 protected:
  void SetUp() override {
    if (!QFontDatabase::hasFamily(QString::fromLatin1(GetParam()))) {
      GTEST_SKIP() << "The font " << GetParam() << " is not installed.";
    }
  }
  void TearDown() override { QApplication::setFont(m_before); }

 private:
  const QFont m_before = QApplication::font();
};

}  // namespace folionet
