#include "CustomHtml.h"

#include <optional>
#include <utility>

#include "RunTimeError.h"

namespace folionet {
namespace {

void Report(const RunTimeError& error, const CustomHtmlKind& kind, Procedure procedure, UserInterface& ui) {
  ui.ShowErrorReport({procedure, error.About(Subject::kCustomHtml), std::string(kind.fileName) + "\r\n"});
}

}  // namespace

bool LoadCustomHtml(const OwnFolder& folder, const CustomHtmlKind& kind, std::string& text, UserInterface& ui) {
  try {
    if (std::optional<std::string> read = ReadOwnText(folder, kind.fileName)) text = std::move(*read);
    return true;
  } catch (const RunTimeError& error) {
    Report(error, kind, kind.load, ui);
    return false;
  }
}

bool SaveCustomHtml(const OwnFolder& folder, const CustomHtmlKind& kind, std::string_view text, UserInterface& ui) {
  try {
    SaveOwnText(folder, kind.fileName, std::string(text) + "\r\n");
    return true;
  } catch (const RunTimeError& error) {
    Report(error, kind, Procedure::kUnloadCustomHtml, ui);
    return false;
  }
}

}  // namespace folionet
