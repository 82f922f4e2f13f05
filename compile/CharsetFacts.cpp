#include "CharsetFacts.h"

#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "CharsetFindings.h"
#include "CodePage.h"
#include "ImportedTextFile.h"
#include "TextCharset.h"

namespace folionet {
namespace {

constexpr CharsetWords kOfText{
    .kind = "text-charset",
    .isUtf8 = Words("QObject", "The text of the translation is UTF-8, the pages %1."),
    .isNotUtf8 = Words("QObject", "The text of the translation is not UTF-8, the pages are."),
    .isOther = Words("QObject", "The text of the translation is not in %1, the charset of the pages."),
};
constexpr CharsetWords kOfTitles{
    .kind = "titles-charset",
    .isUtf8 = Words("QObject", "The book titles are UTF-8, the pages %1."),
    .isNotUtf8 = Words("QObject", "The book titles are not UTF-8, the pages are."),
    .isOther = Words("QObject", "The book titles are not in %1, the charset of the pages."),
    .remedy = "Give the charset that they are in: --set \"%1\".",
};
constexpr CharsetWords kOfName{
    .kind = "name-charset",
    .isUtf8 = Words("QObject", "The name of the translation is UTF-8, the pages %1."),
    .isNotUtf8 = Words("QObject", "The name of the translation is not UTF-8, the pages are."),
    .isOther = Words("QObject", "The name of the translation is not in %1, the charset of the pages."),
};

// As FindMismatch, of what becomes names of pages or stands in each of them: a damaged byte counts too.
std::optional<CharsetMismatch> FindAnyMismatch(const std::string& text, const CodePage& codePage,
                                               std::string_view language) {
  const TextSample sample = SampleOf(text);
  const auto wrong = FindMismatch(sample, codePage, language);
  if (wrong || codePage.FindUndecodable(text) == std::string::npos) return wrong;
  return CharsetMismatch{TextKind::kOther, {}};
}

Finding Difference(bool isTextUtf8) {
  return Warning("charsets-differ",
                 {isTextUtf8 ? Words("QObject",
                                     "The text of the translation is UTF-8 and the book titles are not: no charset of "
                                     "the pages fits both.")
                             : Words("QObject",
                                     "The book titles are UTF-8 and the text of the translation is not: no charset of "
                                     "the pages fits both."),
                  {}},
                 {"Give other titles with --language-file, or convert one of the two files."});
}

// What an imported text was noted to be in when it was written is not what its file holds now.
Finding NotAsImported(const CompileRequest& request, const ModGlob& glob) {
  return Warning("text-charset",
                 {Words("QObject", "The text of the translation is not in %1, which its import has noted in %2."),
                  {glob.Imported.charset, ImportedTextFile(request.txtFilename)}},
                 {"Import the text again with --replace, or correct charset= there."});
}

}  // namespace

std::vector<Finding> FindCharsetFacts(const CompileRequest& request, const ModGlob& glob) {
  std::vector<Finding> facts;
  const CodePage codePage(request.texts.PageCharset);
  std::string titles;
  for (const std::string& title : glob.cboStartBook) titles += title + "\n";
  for (const std::string& code : glob.BookCodes) titles += code + "\n";
  const TextKind kindOfTitles = SampleOf(titles).kind;
  const std::string& language = request.texts.PageLanguage;
  TextSample ofVerses = request.sample ? *request.sample : SampleOfFile(request.txtFilename);
  // An imported text says itself which charset it is in, and is brought into that of the pages.
  if (glob.Imported.IsThere()) {
    if (FindMismatch(ofVerses, CodePage(glob.Imported.charset), language)) {
      facts.push_back(NotAsImported(request, glob));
    }
    ofVerses = {};
  }
  const auto add = [&](const CharsetWords& words, const std::optional<CharsetMismatch>& wrong) {
    if (!wrong) return;
    facts.push_back(OtherCharset(words, *wrong, codePage));
    facts.back().severity = Severity::kWarning;
  };
  if (auto fact = FindInCharset(request.texts.PageCharset, EntryOf(ofVerses, language))) {
    facts.push_back(*std::move(fact));
  }
  if (!glob.Imported.IsThere()) add(kOfName, FindAnyMismatch(request.options.txtBibleSel, codePage, language));
  const bool isEither = kindOfTitles != TextKind::kAscii && ofVerses.kind != TextKind::kAscii;
  if (isEither && kindOfTitles != ofVerses.kind) {
    facts.push_back(Difference(ofVerses.kind == TextKind::kUtf8));
    return facts;
  }
  add(kOfText, FindMismatch(ofVerses, codePage, language));
  add(kOfTitles, FindAnyMismatch(titles, codePage, language));
  return facts;
}

}  // namespace folionet
