#include "ErrorReport.h"

#include <array>
#include <utility>

#include "BuildInfo.h"

namespace folionet {
namespace {

constexpr auto kLabels = std::to_array<std::pair<Procedure, std::string_view>>({
    {Procedure::kFormLoad, "Form Load - MAIN"},
    {Procedure::kPopulateCombos, "Populate Combos"},
    {Procedure::kGetLang, "GetLang"},
    {Procedure::kBooksInChapters, "BooksInChapters"},
    {Procedure::kLoadVerseCount, "Load Verse Count"},
    {Procedure::kGetVSCnt, "GetVSCnt"},
    {Procedure::kDriveChange, "Drive_Change"},
    {Procedure::kBuildTitles, "Build Titles"},
    {Procedure::kCompile, "cmdCompile_Click"},
    {Procedure::kPreviewPage, "cmdPreviewPage_Click"},
    {Procedure::kVerifySite, "cmdVerifySite_Click"},
    {Procedure::kSelectFont, "Select Font"},
    {Procedure::kPopulateCharset, "PopulateCharset"},
    {Procedure::kUnloadEncoding, "UnloadEncoding"},
    {Procedure::kUpdateLanguages, "cmdUpdLang_Click"},
    {Procedure::kUpdateCharsets, "cmdUpdEnc_Click"},
    {Procedure::kLoadCustomHeader, "Load_Custom_Header"},
    {Procedure::kLoadCustomFooter, "Load_Custom_Footer"},
    {Procedure::kUnloadCustomHtml, "Unload_Form"},
    {Procedure::kSaveDefaults, "SaveDefaults"},
    {Procedure::kSaveTitles, "SaveTitles"},
    {Procedure::kSaveMeta, "SaveMETA"},
    {Procedure::kSaveLinkToMain, "SaveLinkToMain"},
    {Procedure::kSaveBackImage, "SaveBackImage"},
    {Procedure::kSaveHyperlinkColours, "SaveDefaultHyperlinkColors"},
    {Procedure::kSetJustification, "SetJustification"},
    {Procedure::kSetFontSize, "SetFontSize"},
    {Procedure::kClickWaterMark, "chkWaterMark_Click"},
    {Procedure::kClickUseNames, "chkUseNames_Click"},
    {Procedure::kUpdateCheck, "updateCheck"},
    {Procedure::kCssCheck, "CSSCheck"},
    {Procedure::kClickBookTitles, "cboLang_Click"},
    {Procedure::kRestoreAll, "cmdRestoreAll_Click"},
});

// Each procedure stands in its place.
constexpr bool IsWhole() {
  std::size_t place = 0;
  while (place < kLabels.size() && kLabels[place].first == static_cast<Procedure>(place)) ++place;
  return place == static_cast<std::size_t>(Procedure::kRestoreAll) + 1;
}
static_assert(IsWhole());

}  // namespace

std::string_view LabelOf(Procedure procedure) { return kLabels[static_cast<std::size_t>(procedure)].second; }

std::string BuildErrorReport(const ErrorReport& report, std::string_view appPath) {
  const std::string newLine = "\r\n";
  std::string text = "An Error has occured." + newLine;
  text += "Title        : " + std::string(kApplicationTitle) + newLine;
  if (appPath.size() > 1 && appPath.ends_with('/')) appPath.remove_suffix(1);
  text += "App Path     : " + std::string(appPath) + newLine;
  text += "Software Ver : " + std::to_string(kVersionMajor) + "." + std::to_string(kVersionMinor) + "." +
          std::to_string(kVersionRevision) + "." + newLine;
  text += "Module       : " + std::string(LabelOf(report.procedure)) + "." + newLine;
  text += "Error Number : " + std::to_string(report.number) + newLine;
  text += "Description  : " + std::string(StandardMessage(report.number)) + "." + newLine;
  text += "Extra Info   : " + newLine;
  text += report.extraInfo + newLine + newLine;
  text += "If the error persists, please report it at: " + std::string(kSupportAddress) + newLine;
  text += "PLEASE SUPPLY A FULL DESCRIPTION OF THE ERROR," + newLine;
  text += "EXACTLY as you see it in this error message.";
  return text;
}

}  // namespace folionet
