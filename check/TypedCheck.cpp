#include "TypedCheck.h"

#include <utility>

#include "CharsetFindings.h"
#include "ImportedTextFile.h"
#include "Installation.h"
#include "Paths.h"
#include "TextCharset.h"

namespace folionet {
namespace {

TextSample SampleOfFirst(const CheckedLibrary& library) {
  if (library.glob.cboBibleName.empty()) return {};
  const std::string text = VerseFile(library.glob, library.codePage, library.glob.BibleFiles.front());
  return FileExists(ImportedTextFile(text)) ? TextSample() : SampleOfFile(text);
}

}  // namespace

void CheckTypedTexts(CheckedLibrary& library) {
  const PageTexts& texts = library.typed.texts;
  const std::string entry = EntryOf(SampleOfFirst(library), texts.PageLanguage);
  if (auto finding = FindInCharset(texts.PageCharset, entry)) library.findings.Add(*std::move(finding));
  for (Finding& finding : FindInTypedTexts(library.typed)) library.findings.Add(std::move(finding));
}

}  // namespace folionet
