#include "CheckedLibrary.h"

#include <utility>

#include "Paths.h"
#include "Text.h"
#include "Utf8.h"

namespace folionet {

namespace {

// Whether a text may have this of itself, so that its import keeps it and tells of it.
bool IsOfVerses(std::string_view kind) {
  return kind == "bad-verse" || kind == "doubled-verse" || kind == "verse-order";
}

}  // namespace

void CheckedLibrary::Add(const char* kind, const std::string& path, std::size_t line, Sentence what, BiblePlace place) {
  // An imported text may lack anything; its import has told.
  const bool isMissing = std::string_view(kind) == "missing-book" || std::string_view(kind) == "missing-chapter" ||
                         std::string_view(kind) == "missing-verse";
  if (isMissing && glob.Imported.IsThere()) return;
  Finding finding{.kind = kind, .file = path, .line = line, .place = std::move(place), .what = std::move(what)};
  if (glob.Imported.IsThere() && IsOfVerses(kind)) {
    finding.severity = Severity::kWarning;
    finding.remedy = {"Its import has kept it; if it is not meant, correct the text and import it with --replace."};
  }
  findings.Add(std::move(finding));
}

void CheckedLibrary::CheckLetterCase(const std::string& found, const std::string& expected) {
  const std::string exact = NativePath(expected);
  if (found == exact || !EqualIgnoringCase(found, exact)) return;  // a stem in another code page is as it should be
  Add("letter-case", found, 0, {"The name is found only in another letter case; it should be %1", {exact}});
}

void CheckedLibrary::CheckBytes(const std::string& path, std::size_t line, std::string_view bytes, BiblePlace place) {
  // An imported text is in its own charset, which holds all of it.
  const std::size_t at = glob.Imported.IsThere() ? std::string_view::npos : codePage.FindUndecodable(bytes);
  if (at == std::string_view::npos) return;
  Add("undecodable", path, line,
      {"The charset %1 does not hold the byte %2 at column %3.",
       {codePage.Name(), "0x" + TwoHexDigits(static_cast<unsigned char>(bytes[at])), std::to_string(at + 1)}},
      std::move(place));
}

}  // namespace folionet
