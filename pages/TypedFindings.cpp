#include "TypedFindings.h"

#include <unicode/uloc.h>

#include <algorithm>
#include <array>
#include <string_view>

#include "BuildTitles.h"
#include "CodePage.h"
#include "FileNames.h"
#include "OptionTable.h"
#include "RecordReader.h"
#include "RunTimeError.h"
#include "Text.h"
#include "Utf16.h"
#include "Utf8.h"
#include "WholeFile.h"

namespace folionet {
namespace {

bool IsPlainCode(std::string_view code) {
  return !code.empty() && std::all_of(code.begin(), code.end(), [](char c) { return IsLetterOrDigit(c) || c == '-'; });
}

// Whether a list of languages, "code","description" a line, holds a code.
bool IsListed(const std::string& path, const std::string& code) {
  try {
    RecordReader records(path, FromUtf16(ReadWholeFile(path), path), Subject::kEncodingList);
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

void AddWord(std::string_view key, std::string_view text, std::vector<Finding>& findings) {
  const std::string_view word = FindUnknownWord(text);
  if (word.empty()) return;
  findings.push_back(
      Warning("unknown-word",
              {Words("QObject",
                     "%1 in the setting %2 is no dynamic word, and stands in the pages as it is; the words "
                     "are %bible%, %bk%, %ch% and %vs%."),
               {std::string(word), std::string(key)}},
              {"Correct it."}));
}

void AddHtmlWord(const char* file, std::string_view text, std::vector<Finding>& findings) {
  const std::string_view word = FindWord(text);
  if (word.empty()) return;
  findings.push_back(
      Warning("word-in-html",
              {Words("QObject",
                     "%1 in %2 stands in the pages as it is: only titles, META texts and the text of the "
                     "link have dynamic words."),
               {std::string(word), file}},
              {}));
}

// Whether bytes are in another charset than that which they are read in, be it in UTF-8, as most editors save a file.
bool IsInOtherCharset(std::string_view bytes, const CodePage& codePage) {
  if (codePage.FindUndecodable(bytes) != std::string_view::npos) return true;
  return codePage.Name() != "utf-8" && !IsAscii(bytes) && IsUtf8(bytes);
}

void AddCharset(const char* file, const TypedTexts& typed, const std::string& text, std::vector<Finding>& findings) {
  const CodePage codePage(typed.texts.OwnCharset);
  const std::string bytes = codePage.Encode(text);
  if (!IsInOtherCharset(bytes, codePage)) return;
  std::size_t line = 1;
  std::string_view rest = bytes;
  for (std::size_t end = 0; (end = rest.find('\n')) != std::string_view::npos; ++line) {
    if (IsInOtherCharset(rest.substr(0, end), codePage)) break;
    rest.remove_prefix(end + 1);
  }
  const char* const what = codePage.FindUndecodable(bytes) == std::string::npos
                               ? Words("QObject", "%1 is read as %2 and is UTF-8: its letters come out wrong.")
                               : Words("QObject", "%1 is read as %2 and is not: its letters come out wrong.");
  findings.push_back(Warning("own-text-charset", {what, {file, codePage.Name()}},
                             {Words("QObject", "Save it as UTF-8 with a byte-order mark.")}));
  findings.back().file = typed.programFolder + file;
  findings.back().line = line;
}

}  // namespace

std::vector<Finding> FindInTypedTexts(const TypedTexts& typed) {
  std::vector<Finding> findings;
  const std::string& language = typed.texts.PageLanguage;
  if (!IsKnownLanguage(language, typed.programFolder + kLanguageList)) {
    findings.push_back(Warning("language-not-listed",
                               {Words("QObject", "No list of languages knows the page language %1."), {language}},
                               {"Give one that is listed with --set \"Lang=CODE NAME\", or add it to lang.txt."}));
  }
  for (const Option& option : OptionTable()) {
    if (option.form == OptionForm::kTemplate) AddWord(option.key, OptionText(option, typed.options), findings);
  }
  AddHtmlWord(kHeaderFile, typed.texts.CustomHeader, findings);
  AddHtmlWord(kFooterFile, typed.texts.CustomFooter, findings);
  AddCharset(kHeaderFile, typed, typed.texts.CustomHeader, findings);
  AddCharset(kFooterFile, typed, typed.texts.CustomFooter, findings);
  return findings;
}

}  // namespace folionet
