#include "ImportFindings.h"

#include "TitleLanguages.h"

namespace folionet {
namespace {

// A sentence in which "%1" is a number.
Sentence Numbered(std::size_t number, const char* one, const char* many, std::vector<std::string> others) {
  others.insert(others.begin(), std::to_string(number));
  return {number == 1 ? one : many, std::move(others)};
}

// The pages of a site that is there get other names.
Finding RenamedBooksOf(const LibraryRequest& request, const LibraryPlan& plan) {
  const auto& [before, now] = plan.renamed.front();
  Finding finding{.kind = "renamed-books",
                  .severity = Severity::kNote,
                  .what = Numbered(plan.renamed.size(),
                                   Words("Import",
                                         "%1 book of the translation that is replaced had another name, such as %2, "
                                         "now %3: their pages get other addresses."),
                                   Words("Import",
                                         "%1 books of the translation that is replaced had another name, such as %2, "
                                         "now %3: their pages get other addresses."),
                                   {before, now})};
  if (!request.titlesFile.empty()) return finding;
  finding.severity = Severity::kWarning;
  finding.remedy = {"Give the names as they were with --titles BOOKS_FILE."};
  return finding;
}

Sentence WhereLanguageIsFrom(const LibraryRequest& request, const LibraryPlan& plan) {
  switch (plan.languageFrom) {
    case LanguageSource::kNone:
      if (request.pageLanguage.empty()) return {Words("Import", "The text names no language.")};
      return {Words("Import", "The text names no language; its pages declare %1, that of the settings."),
              {request.pageLanguage}};
    case LanguageSource::kScript:
      return {Words("Import", "The text names no language; by its letters it is %1."), {plan.text.language}};
    case LanguageSource::kReplaced:
      return {Words("Import", "The text names no language; it stays %1, as before."), {plan.text.language}};
    case LanguageSource::kTitles:
      return {Words("Import", "The text names no language; by its book titles it is %1."), {plan.text.language}};
    case LanguageSource::kGiven:
    case LanguageSource::kText:
      break;
  }
  return {};
}

// Where pages have English names of books, and their text is in another language; empty where they have not.
Sentence WhichNamesLack(const ImportedBible& bible, const LibraryRequest& request, const LibraryPlan& plan) {
  const std::string& language = plan.text.language;
  if (!request.titlesFile.empty() || plan.replaced || language.empty()) return {};
  if (language.substr(0, language.find('-')) == "en" || &NearestLanguage("en") != &NearestLanguage(language)) return {};
  bool areSomeThere = false;
  bool areSomeMissing = false;
  for (const ImportedBible::Chapter& chapter : bible.Chapters()) {
    const bool isMissing = bible.titles[static_cast<std::size_t>(chapter.book)].empty();
    (isMissing ? areSomeMissing : areSomeThere) = true;
  }
  if (!areSomeMissing) return {};
  if (!areSomeThere) return {Words("Import", "The text names none of its books; their names are English.")};
  return {Words("Import", "The text does not name all of its books; the names of the others are English.")};
}

}  // namespace

std::vector<Finding> FindingsOf(const ImportedBible& bible, const LibraryRequest& request, const LibraryPlan& plan) {
  std::vector<Finding> told;
  const auto note = [&](FindingKind kind, Sentence what, Sentence remedy = {}) {
    told.push_back({.kind = kind, .severity = Severity::kNote, .what = std::move(what), .remedy = std::move(remedy)});
  };
  if (!plan.renamed.empty()) told.push_back(RenamedBooksOf(request, plan));
  const std::vector<Finding>& kept = bible.findings.Kept();
  told.insert(told.end(), kept.begin(), kept.end());
  if (const std::size_t more = bible.findings.Count() - kept.size(); more != 0) {
    note("more", {Words("Import", "And %1 more."), {std::to_string(more)}});
  }
  for (const LeftOutBook& book : bible.leftOut) {
    note("left-out-book",
         Numbered(book.verses, Words("Import", "Left out, as it is none of the 66 books: %2 (%1 verse)"),
                  Words("Import", "Left out, as it is none of the 66 books: %2 (%1 verses)"), {book.name}));
  }
  if (Sentence from = WhereLanguageIsFrom(request, plan); !from.IsEmpty()) {
    note("language", std::move(from),
         {plan.text.language.empty() ? "Name it with %1" : "Name another with %1",
          {"--language CODE; \"folionet-cli list codes\" shows the codes."}});
  }
  if (Sentence lacking = WhichNamesLack(bible, request, plan); !lacking.IsEmpty()) {
    note("book-names", std::move(lacking), {"Name them with --titles BOOKS_FILE."});
  }
  return told;
}

}  // namespace folionet
