#include "CharsetCheck.h"

#include <algorithm>
#include <vector>

#include "ImportedText.h"
#include "Installation.h"
#include "Paths.h"
#include "Text.h"
#include "TextCharset.h"
#include "Utf8.h"

namespace folionet {
namespace {

void CheckCharset(CheckedLibrary& library, const std::string& path) {
  const auto mismatch = FindMismatch(SampleOfFile(path), library.codePage, library.typed.texts.PageLanguage);
  if (!mismatch) return;
  Finding finding{.kind = "other-charset", .file = path};
  if (mismatch->kind == TextKind::kUtf8) {
    finding.what = {"The file is in UTF-8, and the pages are in %1.", {library.codePage.Name()}};
  } else {
    finding.what = {"The file is not in UTF-8, and the pages are."};
  }
  finding.remedy = CharsetRemedy("Give the charset that it is in: --set \"%1\".", mismatch->charsetEntry);
  library.findings.Add(std::move(finding));
}

}  // namespace

// An imported translation says itself which charset it is in, and is brought into that of the pages.
void CheckTitlesCharset(CheckedLibrary& library) {
  const std::vector<ImportedText>& imported = library.glob.BibleImports;
  const bool isImported = std::any_of(imported.begin(), imported.end(), [&](const ImportedText& text) {
    return text.IsThere() && EqualIgnoringCase(text.titles, library.titlesFile);
  });
  if (!isImported) CheckCharset(library, SysdefsFile(library.glob, library.titlesFile));
}

void CheckTextCharset(CheckedLibrary& library, const TranslationFiles& files) {
  if (!FileExists(ImportedTextFile(files.text))) CheckCharset(library, files.text);
}

void CheckImportedCharset(CheckedLibrary& library, const std::string& path) {
  const ImportedText& text = library.glob.Imported;
  if (!text.IsThere() || !FindMismatch(SampleOfFile(path), CodePage(text.charset), text.language)) return;
  library.findings.Add(
      {.kind = "other-charset",
       .file = path,
       .what = {"The file is not in %1, which its import has noted.", {text.charset}},
       .remedy = {"Import the text again with --replace, or correct charset= in %1.", {ImportedTextFile(path)}}});
}

}  // namespace folionet
