#include "CharsetFindings.h"

#include <string_view>

namespace folionet {
namespace {

constexpr std::string_view kCharsetKey = "Charset=";
constexpr char kAnyEntry[] = "NAME DESCRIPTION";

}  // namespace

Finding OtherCharset(const CharsetWords& words, const CharsetMismatch& mismatch, const CodePage& codePage) {
  Finding finding{.kind = words.kind, .remedy = CharsetRemedy(words.remedy, mismatch.charsetEntry)};
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
  const Sentence remedy = CharsetRemedy("Give another: --set \"%1\".", entry);
  switch (codePage.Use()) {
    case CharsetUse::kNotKnown:
      return Warning("charset-not-known",
                     {Words("QObject", "No browser knows the charset %1; the pages are written in %2."),
                      {charset, codePage.Name()}},
                     remedy);
    case CharsetUse::kNotFit:
      return Warning("charset-not-fit",
                     {Words("QObject", "Pages cannot be in the charset %1; they are written in %2 all the same."),
                      {charset, codePage.Name()}},
                     remedy);
    case CharsetUse::kAsDeclared:
      break;
  }
  return std::nullopt;
}

Sentence CharsetRemedy(const char* step, const std::string& entry) {
  return {step, {std::string(kCharsetKey) + (entry.empty() ? kAnyEntry : entry)}};
}

std::optional<std::string> EntryOfRemedy(const Sentence& remedy) {
  if (remedy.arguments.size() != 1 || !remedy.arguments[0].starts_with(kCharsetKey)) return std::nullopt;
  const std::string entry = remedy.arguments[0].substr(kCharsetKey.size());
  return entry == kAnyEntry ? std::string() : entry;
}

}  // namespace folionet
