#include "SiteFindings.h"

#include <algorithm>
#include <iterator>
#include <string_view>
#include <tuple>
#include <utility>

namespace folionet {
namespace {

FaultWords WordsFor(LinkFault fault) {
  switch (fault) {
    case LinkFault::kOtherCase:
      return {"other-case", Words("QObject", "\"%1\" is there in another letter case only, %3."),
              Words("QObject", "\"%1\" is there in another letter case only, %3 (%2 pages, this one first).")};
    case LinkFault::kBackslash:
      return {"backslash", Words("QObject", "\"%1\" holds \"\\\", which no address does."),
              Words("QObject", "\"%1\" holds \"\\\", which no address does (%2 pages, this one first).")};
    case LinkFault::kUnreadable:
      return {"unreadable", Words("QObject", "\"%1\" cannot be read."),
              Words("QObject", "\"%1\" cannot be read (%2 pages, this one first).")};
    case LinkFault::kFolder:
      return {"folder", Words("QObject", "\"%1\" is a folder without an index.html."),
              Words("QObject", "\"%1\" is a folder without an index.html (%2 pages, this one first).")};
    case LinkFault::kNoFile:
      return {"folder-for-file", Words("QObject", "\"%1\" is a folder, and a file was expected."),
              Words("QObject", "\"%1\" is a folder, and a file was expected (%2 pages, this one first).")};
    case LinkFault::kCharset:
      return {"charset",
              Words("QObject", "\"%1\" is not in the page's charset, so that browsers look for another name."),
              Words("QObject",
                    "\"%1\" is not in the page's charset, so that browsers look for another name (%2 pages, this one "
                    "first).")};
    case LinkFault::kSign:
      return {
          "sign",
          Words("QObject", "\"%1\" is a file, but \"#\", \"?\", \"%\" and \":\" have another meaning in an address."),
          Words("QObject",
                "\"%1\" is a file, but \"#\", \"?\", \"%\" and \":\" have another meaning in an address (%2 pages, "
                "this one "
                "first).")};
    case LinkFault::kMissing:
      break;
  }
  return {"missing", Words("QObject", "\"%1\" is not there."),
          Words("QObject", "\"%1\" is not there (%2 pages, this one first).")};
}

// The name of a chapter's page without its chapter, and the chapter: "genesis" and "12" of "genesis_12.html".
struct ChapterName {
  std::string_view book;
  std::string_view chapter;  // its digits; empty when the name is none of a chapter
  std::string_view extension;

  bool IsSameBook(const ChapterName& other) const {
    return !chapter.empty() && !other.chapter.empty() && book == other.book && extension == other.extension;
  }
};

ChapterName Split(std::string_view name) {
  const std::size_t dot = std::min(name.rfind('.'), name.size());
  const std::size_t digits = std::min(name.find_last_not_of("0123456789", dot - 1) + 1, dot);
  if (dot == name.size() || digits == dot || digits < 2 || name[digits - 1] != '_') return {name, {}, {}};
  return {name.substr(0, digits - 1), name.substr(digits, dot - digits), name.substr(dot)};
}

// The books in their names' order, their chapters by number.
bool IsBefore(const std::string& left, const std::string& right) {
  const auto key = [](const ChapterName& name) {
    return std::tuple(name.book, name.extension, name.chapter.size(), name.chapter);
  };
  return key(Split(left)) < key(Split(right));
}

}  // namespace

void SiteFindings::Add(Finding finding, Step step) {
  finding.remedy = m_remedies.try_emplace(step, Remedy(step)).first->second;
  m_findings.push_back(std::move(finding));
}

void SiteFindings::AddBroken(const BrokenTarget& broken) {
  const FaultWords words = WordsFor(broken.fault);
  Add({.kind = words.kind,
       .file = broken.page,
       .line = broken.line,
       .what = {broken.pages > 1 ? words.onMany : words.onOne,
                {broken.target, std::to_string(broken.pages), broken.otherCase}}},
      StepFor(broken));
}

void SiteFindings::AddUnread(const std::string& file, std::string why) {
  Add({.kind = "unreadable", .file = file, .what = {Words("QObject", "cannot be read: %1."), {std::move(why)}}},
      Step::kPermissions);
}

void SiteFindings::AddUtf16(const std::string& page) {
  Add({.kind = "utf-16", .file = page, .what = {Words("QObject", "cannot be read: It is UTF-16.")}}, Step::kUtf8);
}

void SiteFindings::AddLinkedFolder(const std::string& link) {
  m_findings.push_back({.kind = "linked-folder",
                        .severity = Severity::kNote,
                        .file = link,
                        .what = {Words("QObject",
                                       "a symbolic link to another folder, whose pages were not read: see "
                                       "that the server has it.")}});
}

void SiteFindings::AddUnreached(const std::vector<std::string>& pages, const std::string& index) {
  AddByBook(pages, index,
            {"unreached",
             Words("QObject",
                   "no page that %1 leads to links here: left from an earlier compile, or outside the chosen books."),
             Words("QObject",
                   "%2 pages, up to %3: no page that %1 leads to links to them: left from an earlier compile, "
                   "or outside the chosen books.")},
            Remedy(Step::kUnreached));
}

void SiteFindings::AddOwnUnreached(const std::vector<std::string>& pages, const std::string& index) {
  AddByBook(
      pages, index,
      {"unreached", Words("QObject", "no page that %1 leads to links here; it is not marked as a page of Folionet."),
       Words("QObject",
             "%2 pages, up to %3: no page that %1 leads to links to them; they are not marked as pages of "
             "Folionet.")},
      {Words("QObject", "Link to it from one of your pages, or move it away.")});
}

void SiteFindings::AddByBook(const std::vector<std::string>& pages, const std::string& index, const FaultWords& words,
                             const Sentence& remedy) {
  std::vector<std::string> sorted = pages;
  std::sort(sorted.begin(), sorted.end(), IsBefore);
  for (auto first = sorted.begin(); first != sorted.end();) {
    const ChapterName book = Split(*first);
    const auto end = std::find_if(std::next(first), sorted.end(),
                                  [&](const std::string& page) { return !book.IsSameBook(Split(page)); });
    const auto count = static_cast<std::size_t>(end - first);
    m_findings.push_back(
        {.kind = words.kind,
         .severity = Severity::kNote,
         .file = *first,
         .what = {count > 1 ? words.onMany : words.onOne, {index, std::to_string(count), *std::prev(end)}},
         .remedy = remedy});
    first = end;
  }
}

void SiteFindings::OfferRemoval() { m_remedies.try_emplace(Step::kUnreached, Remedy(Step::kUnreached)); }

void SiteFindings::AddEmptyIndex(const std::string& index) {
  Add({.kind = "empty-index",
       .severity = Severity::kWarning,
       .file = index,
       .what = {Words("QObject", "leads to no chapter.")}},
      Step::kBooks);
}

void SiteFindings::MoveTo(SiteReport& report) {
  report.findings = std::move(m_findings);
  for (auto& [step, remedy] : m_remedies) report.remedies.push_back(std::move(remedy));
}

SiteFindings::Step SiteFindings::StepFor(const BrokenTarget& broken) {
  switch (broken.fault) {
    case LinkFault::kUnreadable:
      return Step::kPermissions;
    case LinkFault::kCharset:
      return Step::kCharset;
    case LinkFault::kSign:
      return Step::kTitles;
    case LinkFault::kMissing:
    case LinkFault::kNoFile:
      return broken.isPicture ? Step::kPictures : Step::kCorrect;
    default:
      return Step::kCorrect;
  }
}

Sentence SiteFindings::Remedy(Step step) const {
  switch (step) {
    case Step::kPermissions:
      return {Words("QObject", "See that what cannot be read is a file, and to its permissions.")};
    case Step::kUtf8:
      return {Words("QObject", "Save the pages in UTF-16 as UTF-8.")};
    case Step::kCharset:
      return {Words("QObject",
                    "Compile again with the charset that the book titles are in (%1), or with short file "
                    "names (%2)."),
              {m_words.charset, m_words.shortNames}};
    case Step::kTitles:
      return {Words("QObject", "Compile again with short file names (%1), or with book titles that lack these signs."),
              {m_words.shortNames}};
    case Step::kPictures:
      return {Words("QObject", "Copy the missing pictures into the folder, or choose others.")};
    case Step::kBooks:
      return {Words("QObject",
                    "See that the starting book stands before the ending book, and that this is the index "
                    "page; compile again.")};
    case Step::kUnreached:
      return {Words("QObject", "Choose all books and compile again, or remove the pages that nothing leads to%1."),
              {m_words.removeStale}};
    case Step::kCorrect:
      break;
  }
  return {Words("QObject",
                "Compile into this folder again; then correct what is still broken in the custom header and "
                "footer and in your own pages and style sheets, or put the missing file there.")};
}

}  // namespace folionet
