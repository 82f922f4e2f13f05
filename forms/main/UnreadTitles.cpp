#include "UnreadTitles.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "BookTitles.h"
#include "Catalogue.h"
#include "Installation.h"
#include "OptionSaving.h"
#include "QtText.h"
#include "RunTimeError.h"
#include "Sentence.h"
#include "TrySave.h"
#include "Utf8.h"

namespace folionet {
namespace {

constexpr char kTitle[] = "Language File";

bool CanBeRead(const ModGlob& folders, const std::string& name) {
  ModGlob found = folders;
  try {
    ReadBookTitles(found, name);
    return true;
  } catch (const RunTimeError&) {
    return false;
  }
}

// The default one needs no setting; it comes first.
std::string OtherTitles(const ModGlob& folders, const std::string& chosen) {
  std::vector<std::string> names{std::string(FindOption("cboLang")->defaultText)};
  try {
    for (std::string& name : LanguageFiles(folders)) names.push_back(std::move(name));
  } catch (const RunTimeError&) {
    // Told when the program started.
  }
  const auto serves = [&](const std::string& name) {
    return !EqualIgnoringCase(name, chosen) && CanBeRead(folders, name);
  };
  const auto found = std::find_if(names.begin(), names.end(), serves);
  return found == names.end() ? std::string() : *found;
}

}  // namespace

UnreadTitles FindUnreadTitles(const ModGlob& folders, const std::string& chosen, const CodePage& codePage) {
  ModGlob found = folders;
  try {
    ReadCatalogue(found, codePage);
  } catch (const RunTimeError&) {
    return {};
  }
  if (CanBeRead(folders, chosen)) return {};
  UnreadTitles unread{SysdefsFile(folders, chosen), {}, OtherTitles(folders, chosen)};
  for (const ImportedText& text : found.BibleImports) {
    if (text.IsThere() && EqualIgnoringCase(text.titles, chosen)) unread.text = text.name;
  }
  return unread;
}

WayOut OfferWayOut(const UnreadTitles& unread, AppState& state) {
  if (unread.path.empty()) return WayOut::kNone;
  const std::string settings = state.store.FileOf("cboLang");
  const auto tell = [&](const Sentence& text) {
    state.ui.ShowMessage({MessageIcon::kWarning, kTitle, FromQtLines(InDesktopLanguage(text))});
    return WayOut::kNone;
  };
  const auto asks = [&](const Sentence& text) {
    return state.ui.AskYesNo(kTitle, FromQtLines(InDesktopLanguage(text)));
  };
  if (!unread.text.empty()) {
    return tell({Words("QObject",
                       "The book titles cannot be read from %1, which the imported text %2 brings.\n"
                       "To import that text again in its place, by folionet-cli import --replace, or to name another "
                       "file of that folder for cboLang in %3 lets the program start again."),
                 {unread.path, unread.text, settings}});
  }
  if (unread.other.empty()) {
    return tell({Words("QObject",
                       "The book titles cannot be read from %1, and its folder holds no other Language File that can "
                       "be.\n"
                       "To install Versalia anew, or to write such a file with the titles of 66 books, lets the "
                       "program start again."),
                 {unread.path}});
  }
  if (unread.other == FindOption("cboLang")->defaultText) {
    const bool isRestore =
        asks({Words("QObject",
                    "The book titles cannot be read from %1, the Language File that is chosen.\n"
                    "Restore ALL Defaults, or another name for cboLang in %2, lets the program start again.\n"
                    "Return all settings to default now?"),
              {unread.path, settings}});
    return isRestore ? WayOut::kRestore : WayOut::kNone;
  }
  if (!asks({Words("QObject",
                   "The book titles cannot be read from %1, the Language File that is chosen.\n"
                   "Another name for cboLang in %2, such as %3, lets the program start again.\n"
                   "Choose %3 now?"),
             {unread.path, settings, unread.other}})) {
    return WayOut::kNone;
  }
  const bool isSaved = TrySave(state, Procedure::kClickBookTitles, [&](SettingsStore& store) {
    SaveOption(store, "cboLang", unread.other, state.options);
  });
  return isSaved ? WayOut::kOtherTitles : WayOut::kNone;
}

}  // namespace folionet
