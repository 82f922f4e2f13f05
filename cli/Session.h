#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "BookChoice.h"
#include "CodePage.h"
#include "CommonOptions.h"
#include "ConsoleUi.h"
#include "Installation.h"
#include "PageOptions.h"
#include "PageTexts.h"
#include "StoredSettings.h"
#include "modGlob.h"

namespace folionet {

// One run of the command line: the records that a form would hold, read as it reads them. Each routine may throw
// RunTimeError, for what cannot be read; that ends the command with a report.
class Session {
 public:
  Session(const CommonOptions& common, ConsoleUi& ui);

  // Gives settings values for this run, each "KEY=VALUE". Ends the command for an unknown key, a value of the wrong
  // form or a file of book titles that is not there.
  void Override(const std::vector<std::string>& assignments);

  // Reads every page option, the page's language and charset, and with them the code page.
  void LoadOptions();

  // As LoadOptions, but the charset only.
  void LoadCodePage();

  // Reads the custom header and footer of a program folder. Ends the command after reporting one that cannot be read.
  void LoadOwnHtml(const std::string& programFolder);

  // Chooses the translation at a place of BibleNames: one that was imported brings its charset, its language and its
  // book titles, where the person has set no others. The lists have been loaded before.
  void Choose(std::size_t place);

  // As Choose, of the first translation, for what is told of none in particular; a library that cannot be read is let
  // pass.
  void ChooseFirst();

  // Fills the lists of books from the book-title file of the setting "cboLang". Ends the command when that fails.
  void LoadBookTitles();

  // The same, and those of translations from the catalogue; tells which translations are missing.
  void LoadLists();

  // The option that a person gives a value by, as messages name it: where it was not given it stands in the site's
  // file.
  std::string OptionName(const std::string& option, std::string_view siteKey, bool isGiven) const;

  // Ends the command when Versalia's folder of definitions is there, but no file of book titles of the name that this
  // option gives.
  void CheckLanguageFile(const std::string& option, const std::string& name) const;

  // The place in BibleNames of a translation, by display name or file stem, exactly or else ignoring case. Ends the
  // command when there is none: `option` is where it was named.
  std::size_t FindTranslation(const std::string& option, const std::string& nameOrStem) const;

  // As ChooseBook and ChooseBooks; end the command where there are no such books.
  int FindBook(const std::string& option, const std::string& text) const;
  BookRange FindBooks(const std::string& option, const std::string& text) const;

  StoredSettings store;
  ConsoleUi& ui;
  ModGlob glob;
  CodePage codePage;
  PageOptions options;
  PageTexts texts;
  std::string chosenProgramFolder;

 private:
  void Populate(int which);
};

}  // namespace folionet
