#include "frmEncoding.h"

#include <utility>
#include <vector>

#include "EncodingLists.h"
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

void frmEncoding::PopCombo() {
  try {
    Fill(kCharsetList, "Charset", *m_ui->cboCharset, *m_ui->txtCharset);
    Fill(kLanguageList, "Lang", *m_ui->cboLang, *m_ui->txtLang);
  } catch (const RunTimeError& error) {
    m_state.ui.ShowErrorReport({Procedure::kPopulateCharset, error});
  }
}

void frmEncoding::Fill(const char* fileName, const char* key, TextCombo& list, QLineEdit& box) {
  const EncodingList read = ReadEncodingList(StoredOwnFolder(m_state.store, m_state.programFolder), fileName);
  for (const std::string& entry : read.entries) list.addItem(ToQt(entry));
  if (read.failure) throw RunTimeError(*read.failure);
  const QString stored = ToQt(m_state.store.Text(key));
  list.SetText(stored);
  box.setText(stored);
}

// The entries as the files have them now. What is chosen stays, letter for letter, and so does what was typed.
void frmEncoding::ShowListsAnew() {
  for (const auto& [fileName, list] :
       {std::pair{kCharsetList, m_ui->cboCharset}, std::pair{kLanguageList, m_ui->cboLang}}) {
    const EncodingList read = ReadEncodingList(StoredOwnFolder(m_state.store, m_state.programFolder), fileName);
    if (read.failure) continue;  // was told when the lists were filled; the old entries serve
    const QString chosen = list->Text();
    list->clear();
    for (const std::string& entry : read.entries) list->addItem(ToQt(entry));
    list->SetText(chosen);
  }
}

void frmEncoding::AddNew() {
  if (m_addNew == nullptr) {
    m_addNew = new frmAddnew(m_state, this);
    connect(m_addNew, &frmAddnew::ListsChanged, this, &frmEncoding::Load);
    connect(m_addNew, &frmAddnew::RecordsAdded, this, &frmEncoding::ShowListsAnew);
  }
  openModal(*m_addNew);
}

// A list that could not be filled shows nothing, and what is stored stays as it is.
void frmEncoding::SaveLists() {
  EncodingOptions& entries = m_state.options.frmEncoding;
  const EncodingOptions before = entries;
  const auto take = [](const TextCombo& list, std::string& entry) {
    if (const std::string text = FromQt(list.Text()); !text.empty()) entry = text;
  };
  take(*m_ui->cboLang, entries.cboLang);
  take(*m_ui->cboCharset, entries.cboCharset);
  const bool isSaved = TrySave(m_state, Procedure::kUnloadEncoding, [this](SettingsStore& store) {
    SaveEncoding(store, m_state.programFolder, m_state.options);
  });
  if (!isSaved) entries = before;
}

bool frmEncoding::SaveAndUse() {
  const std::string shownIn = StoredCodePage(m_state.store).Name();
  SaveLists();
  const std::string typedLanguage = FromQt(m_ui->txtLang->text());
  const std::string typedCharset = FromQt(m_ui->txtCharset->text());
  PageEncoding encoding{m_state.texts.PageLanguage, m_state.texts.PageCharset};
  bool isDone = true;
  try {
    LoadPageEncoding(m_state.store, m_state.options, encoding, m_state.ui);
    encoding.PageLanguage = EncodingCode(typedLanguage, "Lang");
    encoding.PageCharset = EncodingCode(typedCharset, "Charset");
  } catch (const RunTimeError& error) {
    m_state.ui.ShowErrorReport({Procedure::kUnloadEncoding, error, typedLanguage + "\r\n" + typedCharset + "\r\n"});
    isDone = false;
  }
  m_state.texts.PageLanguage = encoding.PageLanguage;
  m_state.texts.PageCharset = encoding.PageCharset;
  m_state.codePage = CodePage(encoding.PageCharset);
  if (StoredCodePage(m_state.store).Name() != shownIn) ShowListsAnew();
  return isDone;
}

void frmEncoding::reject() {
  SaveAndUse();
  QDialog::reject();
}

}  // namespace folionet
