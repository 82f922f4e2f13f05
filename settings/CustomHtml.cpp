#include "CustomHtml.h"

#include "RunTimeError.h"

namespace folionet {
namespace {

void Report(const RunTimeError& error, const CustomHtmlKind& kind, Procedure procedure, UserInterface& ui) {
  ui.ShowErrorReport({procedure, error.About(Subject::kCustomHtml), std::string(kind.fileName) + "\r\n"});
}

}  // namespace

std::optional<std::string> LoadCustomHtml(const OwnFolder& folder, const CustomHtmlKind& kind,
                                          const std::string& unsaved, UserInterface& ui) {
  try {
    return ReadOwnText(folder, kind.fileName).value_or(unsaved);
  } catch (const RunTimeError& error) {
    Report(error, kind, kind.load, ui);
    return std::nullopt;
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
