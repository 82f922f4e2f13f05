#include "CheckedLibrary.h"

#include <utility>

#include "Paths.h"
#include "Text.h"
#include "Utf8.h"

namespace folionet {

void CheckedLibrary::Add(FindingKind kind, const std::string& path, std::size_t line, Sentence what, BiblePlace place) {
  findings.Add({.kind = kind, .file = path, .line = line, .place = std::move(place), .what = std::move(what)});
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
