#include "Validation.h"

#include <algorithm>

#include "RunTimeError.h"

namespace folionet {
namespace {

Refusal Refuse(Topic topic, std::string title, std::string text, std::string control) {
  return {{MessageIcon::kWarning, std::move(title), std::move(text), topic}, std::move(control)};
}

// Of UTF-8: every byte but those that continue a character.
std::ptrdiff_t CountCharacters(const std::string& text) {
  return std::count_if(text.begin(), text.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; });
}

std::optional<Refusal> CheckAddress(const CompileRequest& request) {
  constexpr std::ptrdiff_t kLongestShortName = 8;
  const bool use83 = request.options.chkUse83;
  const auto [base, extension] = SplitIndexAddress(request.options.txthttpRoot, use83);
  if (!use83 && extension != "html") {
    return Refuse(Topic::kLongExtension, "Not a valid long file extension",
                  "\"" + extension +
                      "\" is not a valid long filename extension. It must be \"html\"\r\n"
                      "Please correct and try again.",
                  "txthttpRoot");
  }
  if (use83 && (extension != "htm" || CountCharacters(base) > kLongestShortName)) {
    return Refuse(Topic::kShortName, "8.3 filename error",
                  "Either \"" + base + "\" is an illegal 8.3 filename or \r\n\"" + extension + "\" is. Please correct.",
                  "txthttpRoot");
  }
  return std::nullopt;
}

}  // namespace

IndexAddress SplitIndexAddress(const std::string& httpRoot, bool use83) {
  const std::size_t dot = httpRoot.rfind('.');
  if (dot == std::string::npos) {
    throw RunTimeError(kInvalidProcedureCall, httpRoot,
                       "The address of the index page has no \".\". Enter one such as index.html.")
        .About(Subject::kIndexAddress);
  }
  IndexAddress address{httpRoot.substr(0, dot), httpRoot.substr(dot + 1)};
  if (const std::size_t slash = address.base.rfind('/'); use83 && slash != std::string::npos) {
    address.base.erase(0, slash + 1);
  }
  return address;
}

std::optional<Refusal> Validate(const CompileRequest& request) {
  if (!IsFolderChosen(request)) return Refuse(Topic::kNoOutputFolder, "No Path", "No Output path Selected.", "Dir1");
  if (request.options.txtBibleSel == kNoBibleSel)
    return Refuse(Topic::kNoTranslation, "No Bible", "No Bible Selected.", "cboBibleName");
  if (request.options.txthttpRoot == kNoHttpRoot) {
    return Refuse(Topic::kNoIndexAddress, "No HTTP Root", "No HTTP root has been entered.", "txthttpRoot");
  }
  if (request.cboLang == "Default") {
    return Refuse(Topic::kNoBookTitles, "Language not selected", "Please select a language for the Book Titles first",
                  "cboLang");
  }
  return CheckAddress(request);
}

}  // namespace folionet
