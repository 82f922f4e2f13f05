#include "NextSteps.h"

#include <array>
#include <utility>

#include "RunTimeError.h"

namespace folionet {
namespace {

constexpr std::array<std::pair<std::string_view, std::string_view>, 10> kNextSteps{{
    {"No Path", "Give one with --output FOLDER."},
    {"No Bible", "Choose another with --translation NAME; \"folionet-cli list translations\" shows them."},
    {"No HTTP Root", "Give the name or address of the index page, such as --index-address index.html."},
    {"Language not selected", "Give one with --language-file NAME; \"folionet-cli list languages\" shows them."},
    {"Not a valid long file extension",
     "Give an address such as --index-address index.html, or short names with --set Use83=1."},
    {"8.3 filename error", "Give an address such as --index-address index.htm, or long names with --set Use83=0."},
    {"No Bible Selected",
     "No translation has a text that can be read where Versalia keeps it: see \"folionet-cli check\"."},
    {"Path and/or file not found",
     "Give them with --versalia-path FOLDER, which holds Sysdefs and Index, and --module-path FOLDER, which holds "
     "Bible; where only the file of book titles is wrong, give another with --language-file NAME. \"folionet-cli "
     "check\" names what is wrong in them."},
    {"INDEX File Not Found", "Then run this command again, or choose another translation with --translation NAME."},
    {"File not found",
     "Then run this command again; \"folionet-cli check\" names what is wrong in an index that is there."},
}};

constexpr std::string_view kCorrectSetting =
    "Correct the setting in its file, or give it for this run with --set KEY=VALUE; \"folionet-cli list settings\" "
    "shows all of them.";
constexpr std::string_view kCorrectPlace =
    "Correct the place that the report names; \"folionet-cli check\" names every such place of a library.";
constexpr std::string_view kSeePath =
    "See that the path in the report is there, that it may be read and written, and that no other program is writing "
    "there, or give another one; \"folionet-cli compile --help\" shows the options.";

std::string_view NextStepByNumber(int errorNumber) {
  switch (errorNumber) {
    case kInvalidProcedureCall:
    case kOverflow:
    case kOutOfMemory:
    case kSubscriptOutOfRange:
    case kTypeMismatch:
    case kInputPastEnd:
      return kCorrectPlace;
    case kBadFileName:
      return "Choose other book titles with --language-file NAME, short names of pages with --set Use83=1, or another "
             "index page with --index-address NAME.";
    case kDiskFull:
      return "Make room on the disk, or choose another folder with --output FOLDER, and run this command again.";
    default:
      return kSeePath;
  }
}

}  // namespace

std::string_view NextStep(std::string_view title) {
  for (const auto& [box, step] : kNextSteps) {
    if (box == title) return step;
  }
  return {};
}

std::string_view NextStepAfterReport(int errorNumber, std::string_view moduleLabel) {
  const bool isValue = errorNumber == kInvalidProcedureCall || errorNumber == kOverflow || errorNumber == kTypeMismatch;
  if (moduleLabel == "Populate Combos" || moduleLabel == "Load Verse Count") return {};  // a box follows, with its step
  if (moduleLabel == "Build Titles" || (moduleLabel == "Form Load - MAIN" && isValue)) return kCorrectSetting;
  if (moduleLabel == "cmdCompile_Click" && errorNumber == kInvalidProcedureCall) {
    return "Give an index page such as --index-address index.html, or correct the line that the report names; "
           "\"folionet-cli check\" names every such line.";
  }
  return NextStepByNumber(errorNumber);
}

}  // namespace folionet
