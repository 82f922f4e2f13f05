#include "FindingLines.h"

#include "CodePage.h"
#include "Text.h"
#include "Utf8.h"

namespace folionet {
namespace {

std::string JsonText(const std::string& text) {
  const std::string utf8 = IsUtf8(text) ? text : CodePage("utf-8").DecodeForDisplay(text);
  std::string quoted = "\"";
  for (std::size_t i = 0; i < utf8.size(); ++i) {
    if (IsControl(utf8, i)) {
      if (utf8[i] == '\xC2') ++i;
      quoted += "\\u00" + TwoHexDigits(static_cast<unsigned char>(utf8[i]));
    } else {
      if (utf8[i] == '"' || utf8[i] == '\\') quoted += '\\';
      quoted += utf8[i];
    }
  }
  return quoted + "\"";
}

const char* SeverityName(Severity severity) {
  switch (severity) {
    case Severity::kNote:
      return "note";
    case Severity::kWarning:
      return "warning";
    case Severity::kFault:
      break;
  }
  return "fault";
}

}  // namespace

std::string PlainLine(const Finding& finding) {
  std::string line = finding.file;
  if (finding.line != 0) line += ":" + std::to_string(finding.line);
  if (!line.empty()) line += ": ";
  if (finding.severity == Severity::kWarning) line += "Warning: ";
  return line + finding.what.InEnglish();
}

std::string JsonLine(const Finding& finding) {
  std::string line = "{\"kind\":" + JsonText(std::string(finding.kind.Word())) +
                     ",\"severity\":" + JsonText(SeverityName(finding.severity));
  const auto add = [&](const char* name, const std::string& text) {
    if (!text.empty()) line += std::string(",\"") + name + "\":" + JsonText(text);
  };
  const auto addNumber = [&](const char* name, std::size_t number) {
    if (number != 0) line += std::string(",\"") + name + "\":" + std::to_string(number);
  };
  add("file", finding.file);
  addNumber("line", finding.line);
  addNumber("book", static_cast<std::size_t>(finding.place.book));
  addNumber("chapter", static_cast<std::size_t>(finding.place.chapter));
  add("verse", finding.place.verse);
  add("text", finding.what.InEnglish());
  add("remedy", finding.remedy.InEnglish());
  return line + "}";
}

}  // namespace folionet
