#include "TextForm.h"

#include <algorithm>

#include "LinesForm.h"
#include "OsisForm.h"
#include "Text.h"
#include "UsfmForm.h"
#include "UsfxForm.h"
#include "UsxForm.h"
#include "ZefaniaForm.h"

namespace folionet {
namespace {

constexpr std::string_view kBlanks = " \t\r\n";

// The name of an XML file's root, without its prefix, in lower case; empty when it is no XML or the root is not here.
std::string RootOf(std::string_view head) {
  for (std::size_t at = head.find('<'); at != std::string_view::npos; at = head.find('<', at)) {
    head.remove_prefix(at + 1);
    at = 0;
    if (head.starts_with("!--")) {
      at = std::min(head.find("-->"), head.size());
      continue;
    }
    if (head.starts_with('?') || head.starts_with('!')) continue;
    const std::string_view name = head.substr(0, head.find_first_of(" \t\r\n/>"));
    return AsciiLower(name.substr(name.find(':') + 1));
  }
  return {};
}

// Whether one of the first lines that are not skipped is a verse.
bool HoldsLines(std::string_view head) {
  int before = 0;
  while (!head.empty()) {
    const std::size_t end = head.find('\n');
    std::string_view line = head.substr(0, end);
    head = end == std::string_view::npos ? std::string_view() : head.substr(end + 1);
    if (line.ends_with('\r')) line.remove_suffix(1);
    if (line.find_first_not_of(kBlanks) == std::string_view::npos || line.starts_with('#')) continue;
    if (LinesForm::IsLine(line)) return before == 0 || !LinesForm::MayStandBefore(line);
    if (++before > LinesForm::kMostBefore || !LinesForm::MayStandBefore(line)) return false;
  }
  return false;
}

}  // namespace

std::string_view NameOf(FormKind kind) {
  switch (kind) {
    case FormKind::kUsfm:
      return "USFM";
    case FormKind::kUsx:
      return "USX";
    case FormKind::kUsfx:
      return "USFX";
    case FormKind::kOsis:
      return "OSIS";
    case FormKind::kZefania:
      return "Zefania XML";
    case FormKind::kLines:
      return "one verse a line";
    case FormKind::kNone:
      break;
  }
  return "none";
}

FormKind FormOf(std::string_view head) {
  const std::size_t first = head.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return FormKind::kNone;
  if (head[first] == '<') {
    const std::string root = RootOf(head);
    if (root == "usx") return FormKind::kUsx;
    if (root == "usfx") return FormKind::kUsfx;
    if (root == "osis" || root == "osistext" || root == "osiscorpus") return FormKind::kOsis;
    return root == "xmlbible" ? FormKind::kZefania : FormKind::kNone;
  }
  if (head[first] == '\\') {
    // A text whose \id is missing is told so.
    for (const std::string_view marker : {"\\id ", "\\id\t", "\n\\c ", "\n\\v "}) {
      if (head.find(marker) != std::string_view::npos) return FormKind::kUsfm;
    }
    return FormKind::kNone;
  }
  // What stands before the marker, such as a licence, is none of the text.
  if (head.find("\n\\id ") != std::string_view::npos) return FormKind::kUsfm;
  return HoldsLines(head) ? FormKind::kLines : FormKind::kNone;
}

std::unique_ptr<TextForm> MakeForm(FormKind kind, BibleBuilder& builder) {
  switch (kind) {
    case FormKind::kUsfm:
      return std::make_unique<UsfmForm>(builder);
    case FormKind::kUsx:
      return std::make_unique<UsxForm>(builder);
    case FormKind::kUsfx:
      return std::make_unique<UsfxForm>(builder);
    case FormKind::kOsis:
      return std::make_unique<OsisForm>(builder);
    case FormKind::kZefania:
      return std::make_unique<ZefaniaForm>(builder);
    case FormKind::kLines:
      return std::make_unique<LinesForm>(builder);
    case FormKind::kNone:
      break;
  }
  return nullptr;
}

}  // namespace folionet
