#include <unicode/uloc.h>

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

#include "BuildTitles.h"
#include "CodePage.h"
#include "RecordReader.h"
#include "RunFacts.h"
#include "RunTimeError.h"
#include "TextCharset.h"

namespace folionet {
namespace {

// `entry` is the charset that the text is in, or may be in.
void FindCharsetUse(const CompileRequest& request, const CodePage& codePage, const std::string& entry,
                    std::vector<RunFact>& facts) {
  if (codePage.Use() == CharsetUse::kAsDeclared) return;
  const bool isKnown = codePage.Use() == CharsetUse::kNotFit;
  RunFact fact{
      isKnown ? RunFactKind::kCharsetNotFit : RunFactKind::kCharsetNotKnown,
      true,
      {isKnown ? Translatable("Notice", "Pages cannot be in the charset %1; they are written in %2 all the same.")
               : Translatable("Notice", "No browser knows the charset %1; the pages are written in %2."),
       {request.texts.PageCharset, codePage.Name()}},
      {}};
  if (!entry.empty()) fact.remedy = {"Charset", entry};
  facts.push_back(std::move(fact));
}

RunFact CharsetFact(bool isOfTitles, const CharsetMismatch& mismatch, const std::string& charset) {
  const RunFactKind kind = isOfTitles ? RunFactKind::kTitlesCharset : RunFactKind::kTextCharset;
  const bool isUtf8 = mismatch.kind == TextKind::kUtf8;
  const char* const text =
      isOfTitles ? (isUtf8 ? Translatable("Notice", "The book titles are UTF-8, the pages %1.")
                           : Translatable("Notice", "The book titles are not UTF-8, the pages are."))
      : isUtf8   ? Translatable("Notice", "The text of the translation is UTF-8, the pages %1.")
                 : Translatable("Notice", "The text of the translation is not UTF-8, the pages are.");
  RunFact fact{kind, true, {text, {charset}}, {}};
  if (!mismatch.charsetEntry.empty()) fact.remedy = {"Charset", mismatch.charsetEntry};
  return fact;
}

bool IsPlainCode(std::string_view code) {
  return !code.empty() && std::all_of(code.begin(), code.end(), [](char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '-';
  });
}

// Whether the list of languages of the program folder, "code","description" a line, holds a code.
bool IsListed(const std::string& path, const std::string& code) {
  try {
    RecordReader records(path, Subject::kEncodingList);
    std::array<std::string_view, 2> fields;
    while (records.Next(fields)) {
      if (EqualIgnoringCase(fields[0], code)) return true;
    }
  } catch (const RunTimeError&) {
    // A list that cannot be read knows nothing; the dialog that shows it tells why.
  }
  return false;
}

bool IsKnownLanguage(const std::string& code, const std::string& list) {
  if (!IsPlainCode(code)) return false;
  const std::string language = code.substr(0, code.find('-'));
  return *uloc_getISO3Language(language.c_str()) != '\0' || language.size() == 3 || IsListed(list, code);
}

void AddWord(std::string_view word, std::string_view key, std::vector<RunFact>& facts) {
  if (word.empty()) return;
  facts.push_back({RunFactKind::kUnknownWord,
                   true,
                   {Translatable("Notice",
                                 "%1 in the setting %2 is no dynamic word, and stands in the pages as it is; the words "
                                 "are %bible%, %bk%, %ch% and %vs%."),
                    {std::string(word), std::string(key)}}});
}

void AddHtmlWord(std::string_view word, std::string_view file, std::vector<RunFact>& facts) {
  if (word.empty()) return;
  facts.push_back({RunFactKind::kWordInHtml,
                   true,
                   {Translatable("Notice",
                                 "%1 in %2 stands in the pages as it is: only titles, META texts and the text of the "
                                 "link have dynamic words."),
                    {std::string(word), std::string(file)}}});
}

}  // namespace

std::vector<RunFact> FindCharsetFacts(const CompileRequest& request, const ModGlob& glob) {
  std::vector<RunFact> facts;
  const CodePage codePage(request.texts.PageCharset);
  std::string titles;
  for (const std::string& title : glob.cboStartBook) titles += title + "\n";
  for (const std::string& code : glob.BookCodes) titles += code + "\n";
  const TextSample ofTitles = SampleOf(titles);
  // An imported text says itself which charset it is in, and is brought into that of the pages.
  const TextSample ofVerses = glob.Imported.IsThere() ? TextSample() : SampleOfFile(request.txtFilename);
  const std::string& charset = request.texts.PageCharset;
  const std::string& language = request.texts.PageLanguage;
  const auto otherwise = FindMismatch(ofVerses, CodePage("utf-8"), language);
  FindCharsetUse(request, codePage, otherwise ? otherwise->charsetEntry : kUtf8Entry, facts);
  const bool isEither = ofTitles.kind != TextKind::kAscii && ofVerses.kind != TextKind::kAscii;
  if (isEither && ofTitles.kind != ofVerses.kind) {
    const bool isTextUtf8 = ofVerses.kind == TextKind::kUtf8;
    facts.push_back(
        {RunFactKind::kCharsetsDiffer,
         true,
         {isTextUtf8
              ? Translatable("Notice",
                             "The text of the translation is UTF-8 and the book titles are not: no charset of the "
                             "pages fits both.")
              : Translatable("Notice",
                             "The book titles are UTF-8 and the text of the translation is not: no charset of the "
                             "pages fits both."),
          {}}});
    return facts;
  }
  if (const auto wrong = FindMismatch(ofVerses, codePage, language))
    facts.push_back(CharsetFact(false, *wrong, charset));
  if (const auto wrong = FindMismatch(ofTitles, codePage, language))
    facts.push_back(CharsetFact(true, *wrong, charset));
  return facts;
}

std::vector<RunFact> FindTextFacts(const CompileRequest& request) {
  std::vector<RunFact> facts;
  const std::string& language = request.texts.PageLanguage;
  if (!IsKnownLanguage(language, request.programFolder + "lang.txt")) {
    facts.push_back({RunFactKind::kLanguageNotListed,
                     true,
                     {Translatable("Notice", "No list of languages knows the page language %1."), {language}}});
  }
  const PageOptions& options = request.options;
  AddWord(FindUnknownWord(options.frmPAgeTitles.txtIndex_html), "index_html", facts);
  AddWord(FindUnknownWord(options.frmPAgeTitles.txtPageTitles), "PageTitles", facts);
  AddWord(FindUnknownWord(options.frmKeywords.txtKeywordsI), "KeywordsI", facts);
  AddWord(FindUnknownWord(options.frmKeywords.txtDescriptionI), "DescriptionI", facts);
  AddWord(FindUnknownWord(options.frmKeywords.txtKeyWords), "Keywords", facts);
  AddWord(FindUnknownWord(options.frmKeywords.txtDescription), "Description", facts);
  AddWord(FindUnknownWord(options.frmLinkToMAin.txtLinkToMain), "LinkToMain", facts);
  AddHtmlWord(FindWord(request.texts.CustomHeader), "CustomHeader.txt", facts);
  AddHtmlWord(FindWord(request.texts.CustomFooter), "CustomFooter.txt", facts);
  return facts;
}

}  // namespace folionet
