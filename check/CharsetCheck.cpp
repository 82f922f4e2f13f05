#include "CharsetCheck.h"

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

#include "CharsetFindings.h"
#include "ImportedTextFile.h"
#include "Installation.h"
#include "Paths.h"
#include "TextCharset.h"
#include "Utf8.h"

namespace folionet {
namespace {

constexpr CharsetWords kOfFile{"other-charset", "The file is in UTF-8, and the pages are in %1.",
                               "The file is not in UTF-8, and the pages are.",
                               "The file is not in %1, the charset of the pages."};
constexpr CharsetWords kOfName{"other-charset", "The name is in UTF-8, and the pages are in %1.",
                               "The name is not in UTF-8, and the pages are.",
                               "The name is not in %1, the charset of the pages."};

// Nothing where the sample fits the pages.
std::optional<Finding> FindOtherCharset(const CheckedLibrary& library, const TextSample& sample,
                                        const CharsetWords& words) {
  const auto mismatch = FindMismatch(sample, library.codePage, library.typed.texts.PageLanguage);
  return mismatch ? std::optional(OtherCharset(words, *mismatch, library.codePage)) : std::nullopt;
}

void CheckCharset(CheckedLibrary& library, const std::string& path, const TextSample& sample) {
  auto finding = FindOtherCharset(library, sample, kOfFile);
  if (!finding) return;
  finding->file = path;
  library.findings.Add(*std::move(finding));
}

bool AreTitlesImported(const CheckedLibrary& library) {
  const std::vector<ImportedText>& imported = library.glob.BibleImports;
  return std::any_of(imported.begin(), imported.end(), [&](const ImportedText& text) {
    return text.IsThere() && EqualIgnoringCase(text.titles, library.titlesFile);
  });
}

// The chosen book titles, as far as they are in the charset of the pages.
TextSample SampleOfTitles(const CheckedLibrary& library) {
  return AreTitlesImported(library) ? TextSample() : SampleOfFile(SysdefsFile(library.glob, library.titlesFile));
}

}  // namespace

// An imported translation says itself which charset it is in, and is brought into that of the pages.
void CheckTitlesCharset(CheckedLibrary& library) {
  CheckCharset(library, SysdefsFile(library.glob, library.titlesFile), SampleOfTitles(library));
}

void CheckTextCharset(CheckedLibrary& library, const TranslationFiles& files) {
  if (FileExists(ImportedTextFile(files.text))) return;
  const TextSample sample = SampleOfFile(files.text);
  const TextSample titles = SampleOfTitles(library);
  if (sample.kind == TextKind::kAscii || titles.kind == TextKind::kAscii || sample.kind == titles.kind)
    return CheckCharset(library, files.text, sample);
  library.findings.Add({.kind = "other-charset",
                        .file = files.text,
                        .what = {sample.kind == TextKind::kUtf8
                                     ? "The file is in UTF-8 and %1 is not: no charset of the pages fits both."
                                     : "%1 is in UTF-8 and the file is not: no charset of the pages fits both.",
                                 {library.titlesFile}},
                        .remedy = {"Give other titles with --language-file, or convert one of the two files."}});
}

void CheckName(CheckedLibrary& library, const std::string& path, std::size_t line, const std::string& name) {
  auto finding = FindOtherCharset(library, SampleOf(name), kOfName);
  if (!finding) return library.CheckBytes(path, line, name);
  finding->file = path;
  finding->line = line;
  library.findings.Add(*std::move(finding));
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
