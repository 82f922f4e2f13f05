#include "LibraryLists.h"

#include <QCoreApplication>
#include <filesystem>
#include <system_error>

#include "BookChoice.h"
#include "BookTitles.h"
#include "Catalogue.h"
#include "ChapterIndex.h"
#include "ChosenText.h"
#include "EncodingInUse.h"
#include "ImportedTextFile.h"
#include "OptionLoading.h"
#include "Paths.h"
#include "QtText.h"
#include "RunTimeError.h"
#include "SiteSettings.h"
#include "TranslationNames.h"
#include "TrySave.h"
#include "Utf8.h"
#include "ui_frmMain.h"

namespace folionet {
namespace {

void FillWithNames(QComboBox& list, const std::vector<std::string>& names, const CodePage& codePage) {
  list.clear();
  QStringList items;
  items.reserve(static_cast<qsizetype>(names.size()));
  for (const std::string& name : names) items << ToQt(codePage.DecodeForDisplay(name));
  list.addItems(items);
}

}  // namespace

LibraryLists::LibraryLists(AppState& state, Ui::frmMain& controls, QObject* parent)
    : QObject(parent), m_state(state), m_controls(controls) {
  connect(m_controls.cboBibleName, &QComboBox::activated, this, &LibraryLists::ChooseBible);
  connect(m_controls.cboLang, &QComboBox::activated, this, &LibraryLists::ChooseLanguage);
  connect(m_controls.cboStartBook, &QComboBox::currentIndexChanged, this, [this](int item) {
    const auto& titles = m_state.glob.cboStartBook;
    const auto place = static_cast<std::size_t>(item);
    m_state.startBookText = item >= 0 && place < titles.size() ? titles[place] : std::string();
  });
}

Outcome LibraryLists::Fill() {
  ModGlob& glob = m_state.glob;
  glob.cboBibleName.clear();  // a start that stopped may have filled them
  glob.cboBibleFile.clear();
  LocateInstallation(m_state.store, m_state.givenFolders, glob);
  ListLanguages();
  LoadOptions(m_state.store, OptionPart::kLanguageFile, m_state.options);
  m_controls.cboLang->SetText(ToQt(m_state.options.main.cboLang));
  if (ReadLists(kAllLists) == Outcome::kEndProgram) return Outcome::kEndProgram;
  ShowTranslations();
  ShowBooks();
  TakeTranslation(0);
  return Outcome::kDone;
}

void LibraryLists::ListLanguages() {
  GetLang(m_state.glob, m_state.ui);
  m_controls.cboLang->clear();
  for (const std::string& name : m_state.glob.cboLang) m_controls.cboLang->addItem(ToQt(name));
}

Outcome LibraryLists::ReadLists(int which) {
  ModGlob& glob = m_state.glob;
  const ModGlob before = glob;  // other folders may be asked for
  const Outcome outcome = PopulateCombos(which, m_state.options.main.cboLang, glob, m_state.codePage, m_state.ui);
  if (outcome == Outcome::kEndProgram)
    m_unread = FindUnreadTitles(before, m_state.options.main.cboLang, m_state.codePage);
  if (which == kAllLists) m_listed = {glob.InstallPath, glob.ModulesPath};
  return outcome;
}

// Whether no other folders were entered since the translations were listed.
bool LibraryLists::IsSameLibrary() const {
  return m_state.glob.InstallPath == m_listed.versaliaPath && m_state.glob.ModulesPath == m_listed.modulePath;
}

bool LibraryLists::IsThere(std::size_t place) const {
  const ModGlob& glob = m_state.glob;
  return IsSameLibrary() || FileExists(VerseFile(glob, m_state.codePage, glob.BibleFiles[place]));
}

// The choice of a person who had the form when its start had stopped stands, and so does the range of books.
Outcome LibraryLists::SelectFirst() {
  const bool isChosen = m_chosen >= 0;
  if (!isChosen) m_controls.cboBibleName->setCurrentIndex(FirstItem());
  const int place = SelectedTranslation();
  if (place < 0 && !m_state.store.SiteText(kSiteTranslation).empty()) {
    m_state.options.txtBibleSel.clear();
    m_controls.txtBibleSel->clear();
    m_controls.txtFilename->clear();
  }
  if (place < 0) return Outcome::kDone;
  if (!isChosen) TakeTranslation(static_cast<std::size_t>(place));
  if (!isChosen && TakeImported(static_cast<std::size_t>(place)) != Outcome::kDone) return Outcome::kEndProgram;
  m_chosen = m_controls.cboBibleName->currentIndex();
  if (SelectedTranslation() < 0) {
    TellUnread(m_chosen);
    return Outcome::kDone;
  }
  const Outcome outcome = BooksInChapters(m_state.glob, static_cast<std::size_t>(place), m_state.codePage, m_state.ui);
  if (!isChosen) SelectBooksOfText();
  if (!isChosen) SelectBooksOfSite();
  return outcome;
}

// Nothing is to be written over by a translation that the site does not name.
int LibraryLists::FirstItem() const {
  const std::string wanted = m_state.store.SiteText(kSiteTranslation);
  const auto named = FindTranslation(m_state.glob, m_state.codePage, wanted);
  for (int item = 0; item < m_controls.cboBibleName->count(); ++item) {
    const auto place = TranslationAt(m_state.glob, static_cast<std::size_t>(item));
    if (place && (wanted.empty() || place == named)) return item;
  }
  if (!wanted.empty()) TellUnknown(tr("The library does not hold the translation of this site: \"%1\""), wanted);
  return -1;
}

void LibraryLists::SelectBooksOfSite() {
  const std::string wanted = m_state.store.SiteText(kSiteBooks);
  if (wanted.empty()) return;
  const auto books = ChooseBooks(m_state.glob, m_state.codePage, wanted);
  if (!books) return TellUnknown(tr("The Language File does not name the books of this site: \"%1\""), wanted);
  m_controls.cboStartBook->setCurrentIndex(books->first);
  m_controls.cboEndBook->setCurrentIndex(books->last);
}

void LibraryLists::TellUnknown(const QString& text, const std::string& choice) const {
  m_state.ui.ShowMessage({MessageIcon::kWarning, FromQt(tr("Not as the site has it")),
                          FromQt(text.arg(ToQt(choice))) + "\r\n" + m_state.store.SitePath()});
}

// A translation that was imported brings its charset, its language and its book titles; the next one may have others.
Outcome LibraryLists::TakeImported(std::size_t place) {
  ModGlob& glob = m_state.glob;
  const bool wasImported = glob.Imported.IsThere();
  ChooseImported(glob, place);
  if (!wasImported && !glob.Imported.IsThere()) return Outcome::kDone;
  try {
    UseEncoding(m_state, ReadEncoding(m_state));
  } catch (const RunTimeError&) {
    // The start has not come to the charset, and tells this when it does.
  }
  m_state.options.main.cboLang = BookTitlesFile(m_state.store, glob);
  m_controls.cboLang->SetText(ToQt(m_state.options.main.cboLang));
  if (ReadLists(kBookLists) == Outcome::kEndProgram) return Outcome::kEndProgram;
  ShowBooks();
  TakeTranslation(place);
  return Outcome::kDone;
}

// An imported text may hold some of the books only.
void LibraryLists::SelectBooksOfText() {
  if (!m_state.glob.Imported.IsThere()) return;
  const auto [first, last] = BooksOfText(m_state.glob);
  m_controls.cboStartBook->setCurrentIndex(first);
  m_controls.cboEndBook->setCurrentIndex(last);
}

Outcome LibraryLists::LoadVerses() {
  const int place = SelectedTranslation();
  if (place < 0) return Outcome::kDone;
  const std::string& stem = m_state.glob.BibleFiles[static_cast<std::size_t>(place)];
  return LoadVerseCount(m_state.glob, IndexFile(m_state.glob, m_state.codePage, stem), m_state.ui);
}

bool LibraryLists::IsTextAsChosen() {
  const int place = SelectedTranslation();
  const int item = m_controls.cboBibleName->currentIndex();
  if (place < 0 && item >= 0) TellUnread(item);
  if (place < 0) return item < 0;
  ModGlob& glob = m_state.glob;
  const std::string& stem = glob.BibleFiles[static_cast<std::size_t>(place)];
  ImportedText& known = glob.BibleImports[static_cast<std::size_t>(place)];
  ImportedText now = known;
  try {
    now = ReadImportedText(VerseFile(glob, m_state.codePage, stem)).value_or(ImportedText());
  } catch (const RunTimeError&) {
    // What was read when it was chosen serves.
  }
  if (now == known) {
    const bool isSound =
        !now.IsThere() || !FileExists(IndexFile(glob, m_state.codePage, stem)) || LoadVerses() == Outcome::kDone;
    if (!isSound) emit EndProgram();
    return isSound;
  }
  known = std::move(now);
  ChooseBible();
  const QString text = tr(
      "\"%1\" was imported anew since it was chosen. Its books, charset and language are shown now: look at them, and "
      "compile again.");
  m_state.ui.ShowMessage({MessageIcon::kInformation, FromQt(tr("Another text")),
                          FromQt(text.arg(m_controls.cboBibleName->currentText()))});
  return false;
}

void LibraryLists::ShowNames() {
  const int translation = m_controls.cboBibleName->currentIndex();
  const int start = m_controls.cboStartBook->currentIndex();
  const int end = m_controls.cboEndBook->currentIndex();
  ShowTranslations();
  // The titles of an imported translation are in the page's code page.
  if (m_state.glob.Imported.IsThere() && ReadLists(kBookLists) == Outcome::kEndProgram) return emit EndProgram();
  ShowBooks();
  m_controls.cboBibleName->setCurrentIndex(translation);
  m_controls.cboStartBook->setCurrentIndex(start);
  m_controls.cboEndBook->setCurrentIndex(end);
  const int place = SelectedTranslation();
  if (place >= 0) TakeTranslation(static_cast<std::size_t>(place));
}

void LibraryLists::ShowImported(const std::string& folder, const std::string& stem) {
  ModGlob& glob = m_state.glob;
  std::error_code ignored;
  if (!std::filesystem::equivalent(glob.InstallPath, folder, ignored)) {
    m_state.givenFolders = {folder, {}};
    LocateInstallation(m_state.store, m_state.givenFolders, glob);
    glob.Imported = {};
    m_state.options.main.cboLang = FindOption("cboLang")->defaultText;
  }
  glob.cboBibleName.clear();
  glob.cboBibleFile.clear();
  ListLanguages();
  m_controls.cboLang->SetText(ToQt(m_state.options.main.cboLang));
  if (ReadLists(kAllLists) == Outcome::kEndProgram) return emit EndProgram();
  ShowTranslations();
  ShowBooks();
  for (int item = 0; item < m_controls.cboBibleName->count(); ++item) {
    if (!EqualIgnoringCase(glob.cboBibleFile[static_cast<std::size_t>(item)], stem)) continue;
    m_controls.cboBibleName->setCurrentIndex(item);
    return ChooseBible();
  }
}

int LibraryLists::SelectedTranslation() const {
  const int item = m_controls.cboBibleName->currentIndex();
  if (item < 0) return -1;
  const auto place = TranslationAt(m_state.glob, static_cast<std::size_t>(item));
  return place && IsThere(*place) ? static_cast<int>(*place) : -1;
}

void LibraryLists::ChooseBible() {
  const int item = m_controls.cboBibleName->currentIndex();
  const int place = SelectedTranslation();
  if (place < 0) {
    m_controls.cboBibleName->setCurrentIndex(m_chosen);
    if (item >= 0) TellUnread(item);
    return emit Chosen();
  }
  m_chosen = item;
  if (TakeImported(static_cast<std::size_t>(place)) == Outcome::kEndProgram) return emit EndProgram();
  if (SelectedTranslation() < 0) return TellUnread(item);
  TakeTranslation(static_cast<std::size_t>(place));
  if (m_state.glob.Imported.IsThere()) {
    if (BooksInChapters(m_state.glob, static_cast<std::size_t>(place), m_state.codePage, m_state.ui) ==
        Outcome::kEndProgram) {
      return emit EndProgram();
    }
    SelectBooksOfText();
  }
  if (LoadVerses() == Outcome::kEndProgram) emit EndProgram();
  emit Chosen();
}

// An item that was listed from other folders than those that were entered later.
void LibraryLists::TellUnread(int item) const {
  const std::string& stem = m_state.glob.cboBibleFile[static_cast<std::size_t>(item)];
  const QString text =
      tr("\"%1\" can no longer be read. Its text would be:").arg(m_controls.cboBibleName->itemText(item));
  m_state.ui.ShowMessage({MessageIcon::kWarning, FromQt(tr("Translation not found")),
                          FromQt(text) + "\r\n" + VerseFile(m_state.glob, m_state.codePage, stem)});
}

void LibraryLists::ChooseLanguage() {
  m_controls.cboStartBook->clear();
  m_controls.cboEndBook->clear();
  m_state.options.main.cboLang = FromQt(m_controls.cboLang->Text());
  TrySave(m_state, Procedure::kClickBookTitles, "cboLang");
  if (ReadLists(kBookLists) == Outcome::kEndProgram) return emit EndProgram();
  ShowBooks();
  // The text of another library that was asked for goes with its chapter index.
  if (!IsSameLibrary() && m_controls.cboBibleName->currentIndex() >= 0) return ChooseBible();
  SelectBooksOfText();
  emit Chosen();
}

void LibraryLists::ShowTranslations() {
  const ModGlob& glob = m_state.glob;
  FillWithNames(*m_controls.cboBibleName, glob.cboBibleName, m_state.codePage);
  for (int item = 0; item < m_controls.cboBibleName->count(); ++item) {
    const auto place = TranslationAt(glob, static_cast<std::size_t>(item));
    if (place && glob.BibleImports[*place].IsThere()) {
      m_controls.cboBibleName->setItemText(item, ToQt(glob.BibleImports[*place].name));
    }
  }
  m_controls.cboBibleName->setCurrentIndex(-1);
}

// Shows the titles with the whole Bible selected.
void LibraryLists::ShowBooks() {
  FillWithNames(*m_controls.cboStartBook, m_state.glob.cboStartBook, m_state.codePage);
  FillWithNames(*m_controls.cboEndBook, m_state.glob.cboEndBook, m_state.codePage);
  m_controls.cboStartBook->setCurrentIndex(0);
  m_controls.cboEndBook->setCurrentIndex(m_controls.cboEndBook->count() - 1);
}

void LibraryLists::TakeTranslation(std::size_t place) {
  const ModGlob& glob = m_state.glob;
  m_state.options.txtBibleSel = PageName(glob, place, m_state.codePage);
  if (glob.cboBibleName.empty()) m_state.options.txtBibleSel.clear();
  m_controls.txtBibleSel->setText(glob.cboBibleName.empty() ? QString()
                                                            : ToQt(ShownName(glob, place, m_state.codePage)));
  // What stands for nothing is not told beside something.
  m_controls.txtBibleSel->setPlaceholderText(
      m_state.options.txtBibleSel.empty() ? QCoreApplication::translate("folionet::frmMain", "None") : QString());
  m_controls.txtFilename->setText(ToQt(VerseFile(glob, m_state.codePage, glob.BibleFiles[place])));
  m_controls.txtFilename->setToolTip(m_controls.txtFilename->text());
}

}  // namespace folionet
