#include "CustomHtml.h"

#include <optional>
#include <utility>

#include "RunTimeError.h"

namespace folionet {
namespace {

void Report(const RunTimeError& error, const CustomHtmlKind& kind, std::string_view label, UserInterface& ui) {
  ui.ShowErrorReport(error.Number(), label, std::string(kind.fileName) + "\r\n" + error.Extra());
}

}  // namespace

bool LoadCustomHtml(const OwnFolder& folder, const CustomHtmlKind& kind, std::string& text, UserInterface& ui) {
  try {
    if (std::optional<std::string> read = ReadOwnText(folder, kind.fileName)) text = std::move(*read);
    return true;
  } catch (const RunTimeError& error) {
    Report(error, kind, kind.loadLabel, ui);
    return false;
  }
}

bool SaveCustomHtml(const OwnFolder& folder, const CustomHtmlKind& kind, std::string_view text, UserInterface& ui) {
  try {
    SaveOwnText(folder, kind.fileName, std::string(text) + "\r\n");
    return true;
  } catch (const RunTimeError& error) {
    Report(error, kind, "Unload_Form", ui);
    return false;
  }
}

}  // namespace folionet
