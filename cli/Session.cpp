#include "Session.h"

#include <optional>
#include <utility>

#include "Catalogue.h"
#include "ChosenText.h"
#include "CommandEnd.h"
#include "CustomHtml.h"
#include "OptionLoading.h"
#include "OwnCharset.h"
#include "PageEncoding.h"
#include "Paths.h"
#include "RunTimeError.h"

namespace folionet {
namespace {

constexpr char kShowSettings[] = " \"folionet-cli list settings\" shows all of them.";

}  // namespace

Session::Session(const CommonOptions& common, ConsoleUi& console)
    : store(StoredSettings::DefaultFolder()), ui(console), chosenProgramFolder(common.programFolder) {
  store.FinishChange();
  if (!common.site.empty()) store.UseSite(common.site);
  LocateInstallation(store, common.folders, glob);
}

void Session::Override(const std::vector<std::string>& assignments) {
  for (const std::string& assignment : assignments) {
    const std::size_t equals = assignment.find('=');
    const std::string name = assignment.substr(0, equals);
    if (equals == std::string::npos) {
      RefuseUsage("--set: KEY=VALUE was expected: \"" + assignment + "\"." + kShowSettings);
    }
    const Option* option = FindOption(name);
    if (option == nullptr) {
      RefuseUsage("--set: there is no setting \"" + name + "\"." + kShowSettings);
    }
    std::string value = assignment.substr(equals + 1);
    if (CheckOption(option->form, value) != 0) {
      RefuseUsage(std::string("--set: ").append(name).append(" must be ").append(Describe(option->form)) + ": \"" +
                  value + "\"." + kShowSettings);
    }
    if (value.find_first_of("\r\n") != std::string::npos) {
      RefuseUsage(std::string("--set: ").append(name).append(" must be one line: \"").append(value).append("\".") +
                  kShowSettings);
    }
    if (name == "cboLang") CheckLanguageFile("--set cboLang", value);
    store.Override(name, std::move(value));
  }
}

void Session::LoadOptions() {
  LoadAllOptions(store, options);
  texts.LinkAlignment = options.main.alignment;
  LoadCodePage();
}

void Session::LoadCodePage() {
  const PageEncoding encoding = ReadPageEncoding(store, options, glob.Imported, ui);
  texts.PageCharset = encoding.PageCharset;
  texts.PageLanguage = encoding.PageLanguage;
  codePage = CodePage(encoding.PageCharset);
}

void Session::LoadOwnHtml(const std::string& programFolder) {
  const OwnFolder own = OwnFolderOfRun(store, programFolder);
  texts.OwnCharset = own.codePage.Name();
  for (const auto& [kind, text] :
       {std::pair{&kCustomHeader, &texts.CustomHeader}, {&kCustomFooter, &texts.CustomFooter}}) {
    std::optional<std::string> loaded = LoadCustomHtml(own, *kind, *text, ui);
    if (!loaded) throw ExitWith(kExitFailed);
    *text = *std::move(loaded);
  }
}

void Session::Choose(std::size_t place) {
  ChooseImported(glob, place);
  if (!glob.Imported.IsThere()) return;
  LoadCodePage();
  LoadBookTitles();
}

void Session::ChooseFirst() {
  try {
    ReadCatalogue(glob, codePage);
  } catch (const RunTimeError&) {
    return;
  }
  ChooseImported(glob, 0);
}

void Session::LoadBookTitles() { Populate(kBookLists); }

void Session::LoadLists() {
  Populate(kAllLists);
  if (const auto why = WhyNoTranslation(glob)) ui.Tell(why->InEnglish());
  for (const std::string& text : glob.unreadableTexts) {
    ui.Tell("A translation is left out, for its text cannot be read: " + text);
  }
}

void Session::Populate(int which) {
  if (PopulateCombos(which, BookTitlesFile(store, glob), glob, codePage, ui) != Outcome::kDone) {
    throw ExitWith(kExitFailed);
  }
}

std::string Session::OptionName(const std::string& option, std::string_view siteKey, bool isGiven) const {
  return isGiven ? option : store.SitePath() + ": " + std::string(siteKey);
}

void Session::CheckLanguageFile(const std::string& option, const std::string& name) const {
  if (!FolderExists(glob.SysdefsPath)) return;
  if (name.find_first_of("/\\") == std::string::npos && FileExists(SysdefsFile(glob, name))) return;
  RefuseUsage(option + ": there is no file of book titles \"" + name +
              "\". \"folionet-cli list languages\" shows those that are there.");
}

std::size_t Session::FindTranslation(const std::string& option, const std::string& nameOrStem) const {
  if (const auto found = folionet::FindTranslation(glob, codePage, nameOrStem)) return *found;
  RefuseUsage(option + ": there is no translation \"" + nameOrStem +
              "\". \"folionet-cli list translations\" shows those that are installed.");
}

int Session::FindBook(const std::string& option, const std::string& text) const {
  if (const auto place = ChooseBook(glob, codePage, text)) return *place;
  RefuseUsage(option + ": there is no book \"" + text +
              "\": a number from 1 to 66, a title or a code was expected. \"folionet-cli list books\" shows them." +
              (ChooseBooks(glob, codePage, text) ? " A part of the Bible is chosen with --books." : ""));
}

BookRange Session::FindBooks(const std::string& option, const std::string& text) const {
  if (const auto books = ChooseBooks(glob, codePage, text)) return *books;
  std::string parts;
  for (const std::string& part : BookParts()) parts += part + ", ";
  RefuseUsage(option + ": there are no books \"" + text + "\": " + parts +
              "a book or two with \"-\" between was expected. \"folionet-cli list books\" shows them.");
}

}  // namespace folionet
