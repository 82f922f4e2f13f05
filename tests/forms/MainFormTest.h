#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTemporaryDir>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "FolderPickers.h"
#include "QtText.h"
#include "ScriptedUi.h"
#include "SmallLibrary.h"
#include "frmMain.h"

namespace folionet {

// A home of its own with a small library that Versalia's settings name, and starts of the main form in it.
class MainFormTest : public testing::Test {
 protected:
  MainFormTest() : m_home(m_folder.path().toStdString()), m_library(m_home / "library"), m_output(m_home / "site") {
    m_library.Register(m_home / "config");
    for (const char* folder : {"program", "site"}) std::filesystem::create_directories(m_home / folder);
    std::ofstream(m_home / "program/default.css") << "body {}\n";
  }

  void SetUp() override { ASSERT_TRUE(m_folder.isValid()); }

  // A start of the program up to the shown form; what the run before had is dropped. False when it must end.
  bool Start() {
    m_form.reset();
    m_state.reset();
    m_store = std::make_unique<SettingsStore>((m_home / "config").string());
    m_ui = std::make_unique<ScriptedUi>();
    if (m_script) m_script(*m_ui);
    m_state = std::make_unique<AppState>(AppState{*m_store, *m_ui, (m_home / "program/").string()});
    m_form = std::make_unique<frmMain>(*m_state);
    m_ui->onPanel = [this](int panel, std::string_view text) { m_form->ShowPanel(panel, text); };
    m_ui->onFocus = [this](std::string_view name) { m_form->FocusControl(name); };
    m_form->OptionDialogs().openModal = [this](QDialog& dialog) { m_opened.push_back(FromQt(dialog.objectName())); };
    m_form->Folders().volumes = [this] {
      return std::vector<Volume>{{"Home", ToQt(m_home.string())}, {"Computer", "/"}};
    };
    QObject::connect(m_form.get(), &frmMain::Ended, m_form.get(), [this] { m_hasEnded = true; });
    m_hasEnded = false;
    const bool goesOn = m_form->LoadForm();
    if (goesOn) m_form->show();
    return goesOn;
  }

  // The control of that name; dialogs have some of the same.
  template <typename Widget = QWidget>
  Widget& Get(const char* name) const {
    auto* widget = m_form->centralWidget()->findChild<Widget*>(QLatin1String(name));
    if (widget == nullptr) throw std::runtime_error(std::string("no control ") + name);
    return *widget;
  }

  bool IsEnabled(const char* name) const { return Get(name).isEnabled(); }
  bool IsChecked(const char* name) const { return Get<QAbstractButton>(name).isChecked(); }
  std::string TextOf(const char* name) const { return FromQt(Get<QLineEdit>(name).text()); }
  std::string ListText(const char* name) const { return FromQt(Get<QComboBox>(name).currentText()); }
  void Click(const char* name) const { Get<QAbstractButton>(name).click(); }

  void Choose(const char* list, int item) const {
    Get<QComboBox>(list).setCurrentIndex(item);
    emit Get<QComboBox>(list).activated(item);
  }

  std::string Panel(int number) const {
    return FromQt(m_form->findChild<QLabel*>(QStringLiteral("StatusBar1_Panel%1").arg(number))->text());
  }

  // What the settings file holds, "" for a key that is not stored.
  std::string Stored(const char* key) const {
    return SettingsStore((m_home / "config").string()).GetSetting("Folionet", "Keys", key, "");
  }

  void Store(const char* key, const std::string& text) const {
    SettingsStore((m_home / "config").string()).SaveText(key, text);
  }

  // Makes the form ready to compile into m_output.
  void ChooseOutput(const char* address = "index.html") {
    m_ui->folders.push_back(m_output.string());
    Click("cmdBrowse");
    Get<QLineEdit>("txthttpRoot").setText(address);
  }

  static std::string Bytes(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }

  QTemporaryDir m_folder;
  std::filesystem::path m_home;
  SmallLibrary m_library;
  std::filesystem::path m_output;
  std::function<void(ScriptedUi&)> m_script;  // gives a start its answers
  std::unique_ptr<SettingsStore> m_store;
  std::unique_ptr<ScriptedUi> m_ui;
  std::unique_ptr<AppState> m_state;
  std::unique_ptr<frmMain> m_form;
  std::vector<std::string> m_opened;  // dialogs, in their order
  bool m_hasEnded = false;
};

}  // namespace folionet
