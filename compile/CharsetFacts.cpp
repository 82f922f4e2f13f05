#include "CharsetFacts.h"

#include <string>
#include <utility>

#include "CodePage.h"
#include "ImportedText.h"
#include "TextCharset.h"
#include "TypedFindings.h"

namespace folionet {
namespace {

// The words of a text whose charset is not that of the pages.
struct MismatchWords {
  const char* kind;
  const char* isUtf8;
  const char* isNot;
  const char* remedy;
};

constexpr MismatchWords kOfText{
    .kind = "text-charset",
    .isUtf8 = Words("QObject", "The text of the translation is UTF-8, the pages %1."),
    .isNot = Words("QObject", "The text of the translation is not UTF-8, the pages are."),
    .remedy = "Give the charset that it is in: --set \"%1\".",
};
constexpr MismatchWords kOfTitles{
    .kind = "titles-charset",
    .isUtf8 = Words("QObject", "The book titles are UTF-8, the pages %1."),
    .isNot = Words("QObject", "The book titles are not UTF-8, the pages are."),
    .remedy = "Give the charset that they are in: --set \"%1\".",
};

constexpr MismatchWords kOfName{
    .kind = "name-charset",
    .isUtf8 = Words("QObject", "The name of the translation is UTF-8, the pages %1."),
    .isNot = Words("QObject", "The name of the translation is not UTF-8, the pages are."),
    .remedy = "Give the charset that it is in: --set \"%1\".",
};

Finding Mismatch(const MismatchWords& words, const CharsetMismatch& mismatch, const CodePage& codePage) {
  Finding fact{.kind = words.kind, .severity = Severity::kWarning};
  if (mismatch.kind == TextKind::kUtf8) {
    fact.what = {words.isUtf8, {codePage.Name()}};
  } else {
    fact.what = {words.isNot, {}};
  }
  fact.remedy = CharsetRemedy(words.remedy, mismatch.charsetEntry);
  return fact;
}

Finding Difference(bool isTextUtf8) {
  return {.kind = "charsets-differ",
          .severity = Severity::kWarning,
          .what = {isTextUtf8 ? Words("QObject",
                                      "The text of the translation is UTF-8 and the book titles are not: no charset of "
                                      "the pages fits both.")
                              : Words("QObject",
                                      "The book titles are UTF-8 and the text of the translation is not: no charset of "
                                      "the pages fits both."),
                   {}},
          .remedy = {"Give other titles with --language-file, or convert one of the two files."}};
}

// What an imported text was noted to be in when it was written is not what its file holds now.
Finding NotAsImported(const CompileRequest& request, const ModGlob& glob) {
  return {.kind = "text-charset",
          .severity = Severity::kWarning,
          .what = {Words("QObject", "The text of the translation is not in %1, which its import has noted in %2."),
                   {glob.Imported.charset, ImportedTextFile(request.txtFilename)}},
          .remedy = {"Import the text again with --replace, or correct charset= there."}};
}

}  // namespace

std::vector<Finding> FindCharsetFacts(const CompileRequest& request, const ModGlob& glob) {
  std::vector<Finding> facts;
  const CodePage codePage(request.texts.PageCharset);
  std::string titles;
  for (const std::string& title : glob.cboStartBook) titles += title + "\n";
  for (const std::string& code : glob.BookCodes) titles += code + "\n";
  const TextSample ofTitles = SampleOf(titles);
  const std::string& language = request.texts.PageLanguage;
  TextSample ofVerses = request.sample ? *request.sample : SampleOfFile(request.txtFilename);
  // An imported text says itself which charset it is in, and is brought into that of the pages.
  if (glob.Imported.IsThere()) {
    if (FindMismatch(ofVerses, CodePage(glob.Imported.charset), language)) {
      facts.push_back(NotAsImported(request, glob));
    }
    ofVerses = {};
  }
  if (auto fact = FindInCharset(request.texts.PageCharset, EntryOf(ofVerses, language))) {
    facts.push_back(*std::move(fact));
  }
  if (!glob.Imported.IsThere()) {
    const auto wrong = FindMismatch(SampleOf(request.options.txtBibleSel), codePage, language);
    if (wrong) facts.push_back(Mismatch(kOfName, *wrong, codePage));
  }
  const bool isEither = ofTitles.kind != TextKind::kAscii && ofVerses.kind != TextKind::kAscii;
  if (isEither && ofTitles.kind != ofVerses.kind) {
    facts.push_back(Difference(ofVerses.kind == TextKind::kUtf8));
    return facts;
  }
  if (const auto wrong = FindMismatch(ofVerses, codePage, language))
    facts.push_back(Mismatch(kOfText, *wrong, codePage));
  if (const auto wrong = FindMismatch(ofTitles, codePage, language)) {
    facts.push_back(Mismatch(kOfTitles, *wrong, codePage));
  } else if (codePage.FindUndecodable(titles) != std::string::npos) {
    facts.push_back(
        {.kind = kOfTitles.kind,
         .severity = Severity::kWarning,
         .what = {Words("QObject", "The book titles are not in %1, the charset of the pages."), {codePage.Name()}},
         .remedy = CharsetRemedy(kOfTitles.remedy, EntryOf(ofTitles, language))});
  }
  return facts;
}

}  // namespace folionet
