#include "FormTest.h"

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QLineEdit>
#include <cstdlib>

#include "FolderPickers.h"
#include "FolderTree.h"
#include "TextBox.h"
#include "TextCombo.h"
#include "frmMain.h"

namespace folionet {
namespace {

std::string Titles(const std::string& word) {
  std::string text;
  for (int book = 1; book <= 66; ++book) {
    const std::string number = std::to_string(book);
    text += number + "\tB" + number + "\t" + word + number + "\r\n";
  }
  return text;
}

void WriteLibrary(const test::TemporaryFolder& home) {
  const std::pair<const char*, std::string> files[] = {
      {"Sysdefs/Translations.txt", "1,0,\"Small Bible\",\"SMALL\"\r\n2,0,\"Other Bible\",\"OTHER\"\r\n"},
      {"Sysdefs/BOOKS.TXT", Titles("Book")},
      {"Sysdefs/BOOKS_ENGLISH.TXT", Titles("Book")},
      {"Sysdefs/BOOKS_DUTCH.TXT", Titles("Boek")},
      {"Index/SMALL.TXT.INDEX", "1,0,1,1,3,50,\"B1\"\r\n2,50,1,2,2,40,\"B1\"\r\n3,90,2,1,1,20,\"B2\"\r\n"},
      {"Index/OTHER.TXT.INDEX", "1,0,1,1,1,20,\"B1\"\r\n"},
      {"Modules/Bible/SMALL.TXT",
       "1\t1\t1\t1\tIn the beginning\r\n2\t1\t1\t2\tAnd the earth\r\n3\t1\t1\t3\tLet there be light\r\n"
       "4\t1\t2\t1\tThus the heavens\r\n5\t1\t2\t2\tAnd on the seventh day\r\n6\t2\t1\t1\tThese are the names\r\n"},
      {"Modules/Bible/OTHER.TXT", "1\t1\t1\t1\tAt first\r\n"}};
  for (const auto& [name, bytes] : files) home.Write(std::string("library/") + name, bytes);
}

}  // namespace

FormTest::FormTest() {
  setenv("XDG_DATA_HOME", (m_home.Path() + "data").c_str(), 1);
  setenv("XDG_STATE_HOME", (m_home.Path() + "state").c_str(), 1);
  WriteLibrary(m_home);
  const std::string library = m_home.Path() + "library/";
  m_home.Write("config/Versalia.ini",
               "[Module_Path]\nVersaliaPath=" + library + "\nModulePath=" + library + "Modules/\n");
  m_home.Write("program/default.css", "body {}\n");
  m_home.Write("program/lang.txt", "\"en-us\",\"English USA\"\r\n\"el\",\"Greek\"\r\n");
  m_home.Write("program/enc.txt", "\"windows-1252\",\"(ANSI Latin 1)\"\r\n\"utf-8\",\"(Unicode)\"\r\n");
  std::filesystem::create_directory(m_home.Path() + "site");
  m_ui.onPanel = [this](int panel, std::string_view text) { m_form->ShowPanel(panel, text); };
  m_ui.onFocus = [this](std::string_view name) { m_form->FocusControl(name); };
  m_whenOpen = [](QWidget& dialog) { dialog.show(); };
}

FormTest::~FormTest() = default;

bool FormTest::Start() {
  m_form.reset();
  m_state.reset();
  m_ui.log.clear();
  m_ui.said.clear();
  m_hasEnded = false;
  m_store = std::make_unique<SettingsStore>(m_home.Path() + "config");
  if (!m_site.empty()) m_store->UseSite(m_site);
  m_state = std::make_unique<AppState>(AppState{*m_store, m_ui, m_home.Path() + "program/", m_given});
  m_form = std::make_unique<frmMain>(*m_state);
  m_form->OptionDialogs().openModal = [this](QDialog& dialog) {
    m_opened.push_back(FromQt(dialog.objectName()));
    m_whenOpen(dialog);
  };
  m_form->OptionDialogs().Get<frmEncoding>().openModal = [](QDialog& dialog) { dialog.show(); };
  if (m_disk) {
    m_form->Folders().askDisk = m_disk;
    m_form->Folders().patience = {};
  }
  m_form->Folders().volumes = [this] {
    const QString home = ToQt(m_home.Path());
    return std::vector<Volume>{{"Home", home.chopped(1)}, {"Computer", "/"}, {"Stick", home + "stick"}};
  };
  QObject::connect(m_form.get(), &frmMain::Ended, m_form.get(), [this] { m_hasEnded = true; });
  QObject::connect(m_form.get(), &frmMain::SiteChosen, m_form.get(), [this](const std::string& path) {
    m_site = path;
    m_hasEnded = true;
  });
  const bool goesOn = m_form->LoadForm();
  if (goesOn) m_form->show();
  return goesOn;
}

void FormTest::Exit() {
  m_ui.yesNo = {true};
  Click("cmdClose");
  EXPECT_TRUE(m_hasEnded);
}

QList<QWidget*> FormTest::AllForms() const {
  for (const char* button : {"cmdPageEncoding", "frmEncoding.cmdAddNew", "cmdImport", "cmdHelp"}) Click(button);
  QList<QWidget*> forms{m_form.get()};
  for (QDialog* dialog : m_form->findChildren<QDialog*>()) forms << dialog;
  return forms;
}

QWidget& FormTest::Find(const std::string& name) const {
  const std::size_t dot = name.find('.');
  const QString formName = ToQt(name.substr(0, dot == std::string::npos ? 0 : dot));
  const QString controlName = ToQt(name.substr(dot + 1));
  QWidget* form = formName.isEmpty() ? m_form->centralWidget() : m_form.get();
  if (!formName.isEmpty() && formName != QLatin1String("frmMain")) form = m_form->findChild<QDialog*>(formName);
  auto* found = form == nullptr || controlName.isEmpty() ? form : form->findChild<QWidget*>(controlName);
  if (found == nullptr) throw std::runtime_error("no control " + name);
  return *found;
}

std::string FormTest::Shown(const std::string& name) const {
  const QWidget& control = Find(name);
  if (const auto* list = qobject_cast<const TextCombo*>(&control)) return FromQt(list->Text());
  if (const auto* list = qobject_cast<const QComboBox*>(&control)) return FromQt(list->currentText());
  if (const auto* box = qobject_cast<const TextBox*>(&control)) return box->Text();
  if (const auto* box = qobject_cast<const QPlainTextEdit*>(&control)) return FromQt(box->toPlainText());
  if (const auto* tree = qobject_cast<const FolderTree*>(&control)) return FromQt(tree->currentItem()->text(0));
  const auto* button = qobject_cast<const QAbstractButton*>(&control);
  if (button != nullptr && button->isCheckable()) return button->isChecked() ? "1" : "0";
  return FromQt(control.property("text").toString() + control.accessibleDescription());
}

std::string FormTest::Items(const std::string& list) const {
  QStringList items;
  const auto& combo = Get<QComboBox>(list);
  for (int i = 0; i < combo.count(); ++i) items << combo.itemText(i);
  return FromQt(items.join('\n'));
}

void FormTest::Click(const std::string& name) const { Get<QAbstractButton>(name).click(); }

void FormTest::Give(const std::string& name, const std::string& text) {
  QWidget& control = Find(name);
  if (auto* line = qobject_cast<QLineEdit*>(&control)) return line->setText(ToQt(text));
  if (auto* box = qobject_cast<TextBox*>(&control)) {
    QApplication::clipboard()->setText(ToQt(text));
    box->selectAll();
    box->textCursor().removeSelectedText();
    return box->paste();
  }
  auto* list = qobject_cast<QComboBox*>(&control);
  if (list == nullptr) {
    m_ui.texts = {text};
    m_ui.colours = {ToQt(text).toInt()};
    if (name == "cmdFont" && m_ui.fonts.empty()) m_ui.fonts = {{"Verdana", ToQt(text).toDouble(), false, false, 0, 0}};
    Click(name);
    m_ui.texts.clear();
    m_ui.colours.clear();
  } else if (list->isEditable()) {
    list->setEditText(ToQt(text));
  } else {
    list->setCurrentIndex(list->findText(ToQt(text)));
    emit list->activated(list->currentIndex());
    emit list->textActivated(list->currentText());
  }
}

void FormTest::Key(QWidget& control, QEvent::Type type, int key) {
  QKeyEvent event(type, key, Qt::NoModifier);
  QApplication::sendEvent(&control, &event);
}

void FormTest::ChooseOutput(const char* address) {
  Give("cmdBrowse", m_home.Path() + "site");
  Give("txthttpRoot", address);
}

std::string FormTest::Stored(const std::string& key) const {
  return SettingsStore(m_home.Path() + "config").GetSetting("Folionet", "Keys", key, "<missing>");
}

void FormTest::Store(const std::string& key, const std::string& text) const {
  SettingsStore(m_home.Path() + "config").SaveText(key, text);
}

void FormTest::BlockSettings() const {
  Remove("config");
  m_home.Write("config", "");
}

}  // namespace folionet
