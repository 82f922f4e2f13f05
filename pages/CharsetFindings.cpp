#include "CharsetFindings.h"

namespace folionet {
namespace {

constexpr char kGiveAnother[] = "Give another: --set \"%1\".";

Finding WithRemedy(Finding finding, const char* step, const std::string& entry) {
  finding.remedy = {step, {"Charset=" + (entry.empty() ? "NAME DESCRIPTION" : entry)}};
  finding.charsetEntry = entry;
  return finding;
}

}  // namespace

Finding OtherCharset(const CharsetWords& words, const CharsetMismatch& mismatch, const CodePage& codePage) {
  Finding finding = WithRemedy({.kind = words.kind}, words.remedy, mismatch.charsetEntry);
  if (mismatch.kind == TextKind::kUtf8) {
    finding.what = {words.isUtf8, {codePage.Name()}};
  } else if (codePage.Name() == "utf-8") {
    finding.what = {words.isNotUtf8, {}};
  } else {
    finding.what = {words.isOther, {codePage.Name()}};
  }
  return finding;
}

std::optional<Finding> FindInCharset(const std::string& charset, const std::string& entry) {
  const CodePage codePage(charset);
  switch (codePage.Use()) {
    case CharsetUse::kNotKnown:
      return WithRemedy(Warning("charset-not-known",
                                {Words("QObject", "No browser knows the charset %1; the pages are written in %2."),
                                 {charset, codePage.Name()}},
                                {}),
                        kGiveAnother, entry);
    case CharsetUse::kNotFit:
      return WithRemedy(
          Warning("charset-not-fit",
                  {Words("QObject", "Pages cannot be in the charset %1; they are written in %2 all the same."),
                   {charset, codePage.Name()}},
                  {}),
          kGiveAnother, entry);
    case CharsetUse::kAsDeclared:
      break;
  }
  return std::nullopt;
}

}  // namespace folionet
