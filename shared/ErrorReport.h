#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

#include "RunTimeError.h"

namespace folionet {

// The procedures that report failures; LabelOf gives the name by which a report tells each.
enum class Procedure {
  kFormLoad,
  kPopulateCombos,
  kGetLang,
  kBooksInChapters,
  kLoadVerseCount,
  kGetVSCnt,
  kDriveChange,
  kBuildTitles,
  kCompile,
  kPreviewPage,
  kVerifySite,
  kSelectFont,
  kPopulateCharset,
  kUnloadEncoding,
  kUpdateLanguages,
  kUpdateCharsets,
  kLoadCustomHeader,
  kLoadCustomFooter,
  kUnloadCustomHtml,
  kSaveDefaults,
  kSaveTitles,
  kSaveMeta,
  kSaveLinkToMain,
  kSaveBackImage,
  kSaveHyperlinkColours,
  kSetJustification,
  kSetFontSize,
  kClickWaterMark,
  kClickUseNames,
  kUpdateCheck,
  kCssCheck,
  kClickBookTitles,
  kRestoreAll,  // the last one
};

std::string_view LabelOf(Procedure procedure);

// What the one error report tells of a failure. `extraInfo` is lines joined by CR LF.
struct ErrorReport {
  // Of an error, whose own lines follow those of `before`.
  ErrorReport(Procedure reporting, const RunTimeError& error, std::string_view before = {})
      : ErrorReport(reporting, error.Number(), std::string(before) + error.Extra()) {
    subject = error.About();
    line = error.Line();
  }

  ErrorReport(Procedure reporting, int errorNumber, std::string extra)
      : procedure(reporting), number(errorNumber), extraInfo(std::move(extra)) {}

  Procedure procedure;
  int number;
  std::string extraInfo;
  Subject subject = Subject::kNone;
  std::size_t line = 0;  // of the subject, from 1; 0 for none
};

// The text of the report, lines joined by CR LF and none at the end. `appPath` is the folder that the program runs
// from.
std::string BuildErrorReport(const ErrorReport& report, std::string_view appPath);

}  // namespace folionet
