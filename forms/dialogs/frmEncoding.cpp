#include "frmEncoding.h"

#include <QShowEvent>
#include <utility>

#include "CustomHtml.h"
#include "EncodingInUse.h"
#include "EncodingLists.h"
#include "OptionTable.h"
#include "OwnCharset.h"
#include "PageEncoding.h"
#include "QtText.h"
#include "RunTimeError.h"
#include "TextCombo.h"
#include "TrySave.h"
#include "frmAddnew.h"
#include "ui_frmEncoding.h"

namespace folionet {

frmEncoding::frmEncoding(AppState& state, QWidget* parent)
    : LoadedDialog(state.ui, parent), m_state(state), m_ui(std::make_unique<Ui::frmEncoding>()) {
  m_ui->setupUi(this);
  LetContentScroll();
  connect(m_ui->cboLang, &QComboBox::textActivated, m_ui->txtLang, &QLineEdit::setText);
  connect(m_ui->cboCharset, &QComboBox::textActivated, m_ui->txtCharset, &QLineEdit::setText);
  // What a person picks is chosen, also where it is what was shown.
  connect(m_ui->cboLang, &QComboBox::textActivated, this, [this] { m_shown.cboLang.clear(); });
  connect(m_ui->cboCharset, &QComboBox::textActivated, this, [this] { m_shown.cboCharset.clear(); });
  connect(m_ui->cmdAddNew, &QPushButton::clicked, this, &frmEncoding::AddNew);
  connect(m_ui->cmdDone, &QPushButton::clicked, this, [this] {
    if (SaveAndUse()) hide();
  });
}

frmEncoding::~frmEncoding() = default;

void frmEncoding::Load() {
  m_ui->cboLang->clear();
  m_ui->cboCharset->clear();
  PopCombo();
}

void frmEncoding::showEvent(QShowEvent* event) {
  const bool isLoaded = IsLoaded();
  LoadedDialog::showEvent(event);
  if (!isLoaded || event->spontaneous()) return;
  if (!m_isFilled) return Load();
  if (ShowInUse("Charset", m_state.texts.PageCharset, *m_ui->cboCharset, *m_ui->txtCharset)) {
    m_shown.cboCharset = Entries().cboCharset;
  }
  if (ShowInUse("Lang", m_state.texts.PageLanguage, *m_ui->cboLang, *m_ui->txtLang))
    m_shown.cboLang = Entries().cboLang;
}

EncodingOptions frmEncoding::Entries() const {
  return {.cboCharset = FromQt(m_ui->cboCharset->Text()), .cboLang = FromQt(m_ui->cboLang->Text())};
}

void frmEncoding::PopCombo() {
  m_isFilled = false;
  try {
    Fill(kCharsetList, "Charset", *m_ui->cboCharset, *m_ui->txtCharset);
    Fill(kLanguageList, "Lang", *m_ui->cboLang, *m_ui->txtLang);
    m_isFilled = true;
  } catch (const RunTimeError& error) {
    m_state.ui.ShowErrorReport({Procedure::kPopulateCharset, error});
  }
  m_shown = Entries();
}

void frmEncoding::Fill(const char* fileName, const char* key, TextCombo& list, QLineEdit& box) {
  const OwnFolder folder = StoredOwnFolder(m_state.store, m_state.programFolder);
  m_listedIn = folder.codePage.Name();
  const EncodingList read = ReadEncodingList(folder, fileName);
  for (const std::string& entry : read.entries) list.addItem(ToQt(entry));
  if (read.failure) throw RunTimeError(*read.failure);
  const QString entry = EntryInUse(key, list);
  list.SetText(entry);
  box.setText(entry);
}

// The stored entry or, where none is stored, that of the code which the text was imported with.
QString frmEncoding::EntryInUse(const char* key, const TextCombo& list) const {
  const std::string code = CodeOfText(m_state.glob.Imported, m_state.store, key);
  if (code.empty()) return ToQt(m_state.store.Text(key));
  const QString start = ToQt(code + " ");
  const int item = list.findText(start, Qt::MatchStartsWith);
  return item < 0 ? start : list.itemText(item);
}

// A code that was typed and is in use stays as it was typed; false then.
bool frmEncoding::ShowInUse(const char* key, const std::string& code, TextCombo& list, QLineEdit& box) {
  if ((box.text().trimmed() + " ").startsWith(ToQt(code + " "))) return false;
  const QString entry = EntryInUse(key, list);
  list.SetText(entry);
  box.setText(entry);
  return true;
}

// Where the lists are; nothing when the settings cannot be read, which was told.
std::optional<OwnFolder> frmEncoding::Folder() const {
  try {
    return StoredOwnFolder(m_state.store, m_state.programFolder);
  } catch (const RunTimeError&) {
    return std::nullopt;
  }
}

// The entries as the files have them now. What is chosen stays, letter for letter, and so does what was typed.
void frmEncoding::ShowListsAnew(const OwnFolder& folder) {
  m_listedIn = folder.codePage.Name();
  for (const auto& [fileName, list] :
       {std::pair{kCharsetList, m_ui->cboCharset}, std::pair{kLanguageList, m_ui->cboLang}}) {
    const EncodingList read = ReadEncodingList(folder, fileName);
    if (read.failure) continue;  // was told when the lists were filled; the old entries serve
    const QString chosen = list->Text();
    list->clear();
    for (const std::string& entry : read.entries) list->addItem(ToQt(entry));
    list->SetText(chosen);
  }
}

// The header and the footer, each as its file is read.
frmEncoding::HtmlTexts frmEncoding::ReadHtml() const {
  HtmlTexts read;
  try {
    const OwnFolder folder = StoredOwnFolder(m_state.store, m_state.programFolder);
    read = {ReadOwnText(folder, kCustomHeader.fileName), ReadOwnText(folder, kCustomFooter.fileName)};
  } catch (const RunTimeError&) {
    // Told by the dialogs of both.
  }
  return read;
}

// A file that was read in a wrong charset is read right in the new one.
void frmEncoding::TakeHtml(const HtmlTexts& before) {
  const HtmlTexts now = ReadHtml();
  const auto take = [](const std::optional<std::string>& old, const std::optional<std::string>& read,
                       std::string& shared) {
    if (old && read && shared == *old) shared = *read;
  };
  take(before[0], now[0], m_state.texts.CustomHeader);
  take(before[1], now[1], m_state.texts.CustomFooter);
}

void frmEncoding::AddNew() {
  if (m_addNew == nullptr) {
    m_addNew = new frmAddnew(m_state, this);
    connect(m_addNew, &frmAddnew::ListsChanged, this, &frmEncoding::Load);
    connect(m_addNew, &frmAddnew::RecordsAdded, this, [this] {
      if (const auto folder = Folder()) ShowListsAnew(*folder);
    });
  }
  openModal(*m_addNew);
}

// An entry that merely is shown is not stored where none is or a text brings it, for it must not stand in the way of
// the next text's, nor where another program has stored another one since.
void frmEncoding::SaveChanged() {
  const EncodingOptions entries = Entries();
  const auto isShownOnly = [this](const char* key, const std::string& entry, const std::string& shown) {
    return entry == shown && (!m_state.store.Has(key) || m_state.store.Text(key) != shown ||
                              !CodeOfText(m_state.glob.Imported, m_state.store, key).empty());
  };
  EncodingOptions changed = entries;
  const HtmlTexts before = ReadHtml();
  const bool isSaved = TrySave(m_state, Procedure::kUnloadEncoding, [&](SettingsStore& store) {
    store.ReadAnew();
    if (isShownOnly("Charset", entries.cboCharset, m_shown.cboCharset)) changed.cboCharset.clear();
    if (isShownOnly("Lang", entries.cboLang, m_shown.cboLang)) changed.cboLang.clear();
    if (!changed.cboLang.empty() && CodeOfEntry(changed.cboLang) == m_state.glob.Imported.language) {
      // The text's own again: it must not become that of every other text too.
      if (store.Has("Lang")) store.RemoveText("Lang");
      if (!store.Has("Lang")) changed.cboLang.clear();
    }
    if (!changed.cboCharset.empty() || !changed.cboLang.empty()) SaveEncoding(store, m_state.programFolder, changed);
  });
  m_state.refusedEncoding = isSaved ? EncodingOptions() : std::move(changed);
  if (!isSaved) return;
  m_shown = entries;
  TakeHtml(before);
}

bool frmEncoding::SaveAndUse() {
  SaveChanged();
  const std::string typedLanguage = FromQt(m_ui->txtLang->text());
  const std::string typedCharset = FromQt(m_ui->txtCharset->text());
  bool isDone = true;
  try {
    const PageEncoding read = ReadEncoding(m_state);
    m_state.typed = {};
    UseEncoding(m_state, read);
    const auto typed = [](const std::string& text, const char* key, const std::string& readCode) {
      const std::string code = EncodingCode(text, key);
      return code == readCode ? std::string() : code;
    };
    m_state.typed.PageLanguage = typed(typedLanguage, "Lang", read.PageLanguage);
    m_state.typed.PageCharset = typed(typedCharset, "Charset", read.PageCharset);
    UseEncoding(m_state, read);
  } catch (const RunTimeError& error) {
    m_state.ui.ShowErrorReport({Procedure::kUnloadEncoding, error, typedLanguage + "\r\n" + typedCharset + "\r\n"});
    isDone = false;
  }
  if (const auto folder = Folder(); folder && folder->codePage.Name() != m_listedIn) ShowListsAnew(*folder);
  return isDone;
}

void frmEncoding::reject() {
  SaveAndUse();
  QDialog::reject();
}

}  // namespace folionet
