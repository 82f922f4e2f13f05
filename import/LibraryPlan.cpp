#include "LibraryPlan.h"

#include <algorithm>
#include <filesystem>

#include "CatalogueText.h"
#include "CodePage.h"
#include "FileNames.h"
#include "FlowingText.h"
#include "ImportError.h"
#include "ImportFindings.h"
#include "ImportedTextFile.h"
#include "LibraryTitles.h"
#include "Paths.h"
#include "ProgramFolder.h"
#include "Text.h"
#include "TextLanguage.h"
#include "TitleLanguages.h"
#include "Utf8.h"

namespace folionet {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kLongestStem = 60;
constexpr std::size_t kLongestName = 200;
constexpr std::size_t kLongestLanguage = 35;

bool IsOfStem(char c) { return IsLetterOrDigit(c) || c == '-' || c == '_'; }

bool IsStem(std::string_view text) {
  return text.size() <= kLongestStem && std::all_of(text.begin(), text.end(), IsOfStem);
}

bool IsOfLanguage(char c) { return c != '_' && IsOfStem(c); }

bool HasControl(std::string_view text) {
  return std::any_of(text.begin(), text.end(), [](unsigned char c) { return c < 0x20 || c == 0x7F; });
}

// With no link in it that could be pointed elsewhere before the last file is written.
std::string AbsoluteFolder(const std::string& folder) {
  const std::string real = RealPath(folder);
  return WithSeparator(!real.empty() ? real : fs::absolute(folder).lexically_normal().string());
}

std::string ChosenFolder(const LibraryRequest& request) {
  const std::string folder = request.folder.empty() ? OwnLibraryFolder() : request.folder;
  if (!folder.empty()) return AbsoluteFolder(folder);
  throw ImportError(kPathNotFound, "library",
                    {Words("Import", "HOME names no folder that it could be in. Give one with --into FOLDER.")});
}

// "World English Bible" gives WEB, "Afrikaans" AFRIKAANS; empty for a name without a letter or digit of ASCII.
std::string StemOf(std::string_view name) {
  constexpr std::size_t kFewestWords = 2;
  std::string initials;
  std::string all;
  bool isStart = true;
  for (const char c : name) {
    if (!IsOfStem(c) || c == '-' || c == '_') {
      isStart = isStart || c == ' ' || c == '-';
      continue;
    }
    const char upper = AsciiUpper(c);
    if (isStart || IsDigit(c)) initials += upper;
    all += upper;
    isStart = false;
  }
  return initials.size() > kFewestWords ? initials : all.substr(0, kLongestStem / 3);
}

// One for each thread: texts are planned beside each other.
const CodePage& Windows1252() {
  thread_local const CodePage page;
  return page;
}

std::string LanguageTitles(const TitleLanguage& language) { return "BOOKS_" + std::string(language.name) + ".TXT"; }

// The name as the catalogue holds it: one that windows-1252 lacks a character of, in UTF-8.
std::string CatalogueName(const std::string& name) {
  return Windows1252().Holds(name) ? Windows1252().Encode(name) : name;
}

std::string FreeStem(const LibraryPlan& plan, const CatalogueText& catalogue) {
  const std::string wanted = StemOf(plan.text.name);
  const std::string base = wanted.empty() ? "TEXT" : wanted;
  std::string stem = base;
  for (int number = 2; catalogue.WithStem(stem) != nullptr || !plan.library.InTheWay(stem).empty(); ++number) {
    stem = base + "-" + std::to_string(number);
  }
  return stem;
}

// Chooses the stem, and refuses to take the place of a translation, or of a file, that is not to be replaced.
void ChooseStem(const LibraryRequest& request, const CatalogueText& catalogue, LibraryPlan& plan) {
  const CatalogueRecord* sameName = catalogue.WithName(CatalogueName(plan.text.name));
  if (sameName == nullptr) sameName = catalogue.WithName(plan.text.name);
  if (sameName != nullptr && (sameName->stem.empty() || !IsStem(sameName->stem)))
    sameName = nullptr;  // nothing of ours, and it may lead elsewhere
  if (request.stem.empty()) {
    plan.stem = sameName != nullptr ? sameName->stem : FreeStem(plan, catalogue);
  } else {
    plan.stem = request.stem;
  }
  const CatalogueRecord* const sameStem = catalogue.WithStem(plan.stem);
  const std::string file = plan.library.InTheWay(plan.stem);
  plan.replaces = sameStem != nullptr || !file.empty();
  if (!plan.replaces || request.replace) return;
  if (sameStem == nullptr) {
    throw RunTimeError(kFileAlreadyOpen, file, "It is there already, though the library does not list it.");
  }
  throw RunTimeError(kFileAlreadyOpen, plan.library.Folder(),
                     "The library holds a translation with the stem " + sameStem->stem + " already.");
}

// A name for the file of titles that no other translation and no language has.
std::string TitlesName(const LibraryPlan& plan) {
  const auto isOfLanguage = [](const std::string& name) {
    const std::vector<TitleLanguage>& languages = TitleLanguages();
    return std::any_of(languages.begin(), languages.end(), [&](const TitleLanguage& language) {
      return EqualIgnoringCase(name, LanguageTitles(language));
    });
  };
  std::string name = "BOOKS_" + plan.stem + ".TXT";
  for (int number = 2; !plan.replaced || !EqualIgnoringCase(plan.replaced->titles, name); ++number) {
    if (!isOfLanguage(name) && !IsThere(plan.library.Sysdefs(name))) break;
    name = "BOOKS_" + plan.stem + "-" + std::to_string(number) + ".TXT";
  }
  return name;
}

void ChooseLanguage(const ImportedBible& bible, const LibraryRequest& request, LibraryPlan& plan) {
  const TextScript script = ScriptOf(bible);
  const std::string before = plan.replaced ? plan.replaced->language : std::string();
  const std::pair<LanguageSource, std::string> sources[] = {{LanguageSource::kGiven, request.language},
                                                            {LanguageSource::kText, bible.language},
                                                            {LanguageSource::kReplaced, before},
                                                            {LanguageSource::kScript, script.language},
                                                            {LanguageSource::kTitles, LanguageOfTitles(bible)}};
  for (const auto& [source, code] : sources) {
    if (code.empty()) continue;
    plan.text.language = LanguageCode(code);
    plan.languageFrom = source;
    break;
  }
  if (script.isRightToLeft) plan.text.direction = "rtl";
}

void CountBooks(const ImportedBible& bible, LibraryPlan& plan) {
  int last = 0;
  for (const ImportedBible::Chapter& chapter : bible.Chapters()) {
    if (chapter.book != last) ++plan.books;
    ++plan.chapters;
    last = chapter.book;
  }
  plan.verses = bible.VerseCount();
}

// The titles of pages, and which books have had other ones.
BookTitleList ChooseTitles(const ImportedBible& bible, const LibraryRequest& request, LibraryPlan& plan) {
  BookTitleList given = request.titlesFile.empty() ? bible.titles : ReadTitlesFile(request.titlesFile);
  if (!plan.replaced) return CompleteTitles(given, plan.text.language);
  const auto before = ReadTitlesIfSound(plan.library.Sysdefs(plan.replaced->titles));
  if (!before) return CompleteTitles(given, plan.text.language);
  if (request.titlesFile.empty()) given = KeepTitles(std::move(given), *before, plan.replaced->language);
  BookTitleList titles = CompleteTitles(given, plan.text.language);
  plan.renamed = RenamedBooks(bible, *before, titles);
  return titles;
}

// The delivered files of titles that the library lacks.
void AddDeliveredTitles(LibraryPlan& plan) {
  const auto add = [&](const std::string& name, const TitleLanguage& language) {
    const std::string path = plan.library.Sysdefs(name);
    if (FileExists(path)) return;
    const std::vector<std::string_view> titles(language.titles.begin(), language.titles.end());
    plan.files.emplace_back(path, Windows1252().Encode(TitleFileText(titles)));
  };
  for (const TitleLanguage& language : TitleLanguages()) {
    add(LanguageTitles(language), language);
  }
  add(kDefaultTitles, TitleLanguages().front());
}

std::string NameFor(const ImportedBible& bible, const LibraryRequest& request) {
  const std::string name = WithSingleBlanks(!request.name.empty() ? request.name
                                            : !bible.name.empty() ? bible.name
                                                                  : request.fallbackName);
  return name.empty() ? "Bible" : std::string(CutToBytes(name, kLongestName));
}

}  // namespace

std::string Encoded(const LibraryPlan& plan, std::string_view utf8) {
  return plan.text.charset == "utf-8" ? std::string(utf8) : Windows1252().Encode(utf8);
}

Sentence RefusalOf(const LibraryRequest& request) {
  constexpr char kName[] = "--name";
  if (HasControl(request.name)) {
    return {Words("Import", "%1: a text without control characters was expected."), {kName}};
  }
  if (request.name.size() > kLongestName) {
    return {Words("Import", "%1: a text of at most 200 bytes was expected."), {kName}};
  }
  if (!IsStem(request.stem)) {
    return {Words("Import", "%1: at most 60 letters and digits of ASCII, \"-\" and \"_\" were expected: %2"),
            {"--stem", Quoted(request.stem)}};
  }
  if (!std::all_of(request.language.begin(), request.language.end(), IsOfLanguage) ||
      request.language.size() > kLongestLanguage) {
    return {Words("Import", "%1: a code such as he or pt-br was expected: %2"),
            {"--language", Quoted(request.language)}};
  }
  if (HasControl(request.folder)) {
    return {Words("Import", "%1: a folder without control characters in its name was expected."), {"--into"}};
  }
  return {};
}

LibraryPlan PlanLibrary(const ImportedBible& bible, const LibraryRequest& request) {
  LibraryPlan plan;
  plan.library = LibraryFiles(ChosenFolder(request));
  plan.text.name = NameFor(bible, request);
  plan.catalogue = plan.library.Sysdefs(kCatalogueFile);
  const CatalogueText catalogue(plan.catalogue);
  ChooseStem(request, catalogue, plan);
  if (plan.replaces) plan.replaced = ReadImportedText(plan.library.VerseFile(plan.stem));
  ChooseLanguage(bible, request, plan);

  const BookTitleList titles = ChooseTitles(bible, request, plan);
  const auto holds = [](const std::string& text) { return Windows1252().Holds(text); };
  const std::vector<std::string>& text = bible.AllText();
  const bool fits = std::all_of(text.begin(), text.end(), holds) && std::all_of(titles.begin(), titles.end(), holds) &&
                    holds(plan.text.name);
  plan.text.charset = fits ? "windows-1252" : "utf-8";
  plan.text.titles = TitlesName(plan);

  CountBooks(bible, plan);
  plan.verseFile = plan.library.VerseFile(plan.stem);
  plan.files.emplace_back(ImportedTextFile(plan.verseFile), WriteImportedText(plan.text));
  plan.files.emplace_back(plan.library.Sysdefs(plan.text.titles),
                          Encoded(plan, TitleFileText({titles.begin() + 1, titles.end()})));
  AddDeliveredTitles(plan);
  plan.catalogueBefore = catalogue.Content();
  plan.files.emplace_back(plan.catalogue, catalogue.With({CatalogueName(plan.text.name), plan.stem}));
  plan.findings = FindingsOf(bible, request, plan);
  return plan;
}

}  // namespace folionet
