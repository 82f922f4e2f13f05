#pragma once

#include <QObject>
#include <cstddef>
#include <string>

#include "AppState.h"
#include "Outcome.h"
#include "UnreadTitles.h"

namespace folionet {

namespace Ui {
class frmMain;
}

// The lists that come from Versalia's library: translations, book-title languages and books, with the boxes that show
// the chosen translation and its file.
class LibraryLists : public QObject {
  Q_OBJECT

 public:
  LibraryLists(AppState& state, Ui::frmMain& controls, QObject* parent);

  // Finds the library and fills every list; the stored language is shown, and no translation is selected yet.
  Outcome Fill();

  // Selects the translation and the books of the site whose file is in use, else the first translation that can be
  // read, when none is chosen, and counts the chapters. To have none is no failure.
  Outcome SelectFirst();

  // Reads the verse counts of the selected translation.
  Outcome LoadVerses();

  // Lists the translations of the library in this folder, into which one was imported, and chooses the one of the stem.
  void ShowImported(const std::string& folder, const std::string& stem);

  // Whether the selected translation is what it was when it was chosen. One that was imported anew since is told of and
  // chosen anew, with its books, charset and language; its verse counts are read anew in any case.
  bool IsTextAsChosen();

  // Shows the names again after the code page has changed.
  void ShowNames();

  // What ended the program, where it was a file of book titles.
  const UnreadTitles& Unread() const { return m_unread; }

  // The place in BibleNames of the selected translation; -1 for none, and for one that is not in the folders that were
  // entered since.
  int SelectedTranslation() const;

 signals:
  // A translation or a language was chosen.
  void Chosen();

  // A failure was told after which the program must end.
  void EndProgram();

 private:
  void ChooseBible();
  void ChooseLanguage();
  void ShowTranslations();
  void ShowBooks();
  void TakeTranslation(std::size_t place);
  Outcome TakeImported(std::size_t place);
  void SelectBooksOfText();
  void SelectBooksOfSite();
  int FirstItem() const;
  void TellUnknown(const QString& text, const std::string& choice) const;
  void TellUnread(int item) const;
  void ListLanguages();
  Outcome ReadLists(int which);  // as PopulateCombos
  bool IsSameLibrary() const;
  bool IsThere(std::size_t place) const;

  AppState& m_state;
  Ui::frmMain& m_controls;
  int m_chosen = -1;      // item of cboBibleName
  GivenFolders m_listed;  // where the translations were listed from
  UnreadTitles m_unread;
};

}  // namespace folionet
