#include "CustomHtml.h"

#include <optional>

#include "LineReader.h"
#include "RunTimeError.h"
#include "WholeFile.h"

namespace folionet {
namespace {

void Report(const RunTimeError& error, const CustomHtmlKind& kind, std::string_view label, UserInterface& ui) {
  ui.ShowErrorReport(error.Number(), label, std::string(kind.fileName) + "\r\n" + error.Extra());
}

}  // namespace

bool LoadCustomHtml(const std::string& programFolder, const CustomHtmlKind& kind, const CodePage& codePage,
                    std::string& text, UserInterface& ui) {
  const std::string path = programFolder + std::string(kind.fileName);
  try {
    std::optional<std::string> bytes = ReadIfThere(path);
    if (!bytes) return true;
    if (bytes->starts_with(kByteOrderMark)) bytes->erase(0, kByteOrderMark.size());
    text = codePage.Decode(*bytes);
    return true;
  } catch (const RunTimeError& error) {
    Report(error, kind, kind.loadLabel, ui);
    return false;
  }
}

bool SaveCustomHtml(const std::string& programFolder, const CustomHtmlKind& kind, const CodePage& codePage,
                    std::string_view text, UserInterface& ui) {
  try {
    ReplaceWholeFile(programFolder + std::string(kind.fileName), codePage.Encode(text) + "\r\n");
    return true;
  } catch (const RunTimeError& error) {
    Report(error, kind, "Unload_Form", ui);
    return false;
  }
}

void RecodeCustomHtml(const std::string& programFolder, const CustomHtmlKind& kind, const CodePage& from,
                      const CodePage& to, UserInterface& ui) {
  const std::string path = programFolder + std::string(kind.fileName);
  try {
    const std::optional<std::string> bytes = ReadIfThere(path);
    if (!bytes) return;
    const std::string recoded = to.Encode(from.Decode(*bytes));
    if (recoded != *bytes) ReplaceWholeFile(path, recoded);
  } catch (const RunTimeError& error) {
    Report(error, kind, kind.loadLabel, ui);
  }
}

}  // namespace folionet
