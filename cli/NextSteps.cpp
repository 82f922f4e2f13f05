#include "NextSteps.h"

#include <array>
#include <utility>

#include "RunTimeError.h"

namespace folionet {
namespace {

constexpr std::array<std::pair<std::string_view, std::string_view>, 9> kNextSteps{{
    {"No Path", "Give one with --output FOLDER."},
    {"No Bible", "Choose another with --translation NAME; \"folionet-cli list translations\" shows them."},
    {"No HTTP Root", "Give the name or address of the index page, such as --index-address index.html."},
    {"Language not selected", "Give one with --language-file NAME; \"folionet-cli list languages\" shows them."},
    {"Not a valid long file extension",
     "Give an address such as --index-address index.html, or short names with --set Use83=1."},
    {"8.3 filename error", "Give an address such as --index-address index.htm, or long names with --set Use83=0."},
    {"No Bible Selected",
     "No translation has a text that can be read where Versalia keeps it: see \"folionet-cli check\"."},
    {"INDEX File Not Found", "Then run this command again, or choose another translation with --translation NAME."},
    {"File not found",
     "Then run this command again; \"folionet-cli check\" names what is wrong in an index that is there."},
}};

constexpr std::string_view kCorrectSetting =
    "Correct the setting in its file, or give it for this run with --set KEY=VALUE; \"folionet-cli list settings\" "
    "shows all of them.";
constexpr std::string_view kCorrectIndex =
    "Correct the place that the report names, or remove this index and run Versalia on the translation, which makes it "
    "anew; \"folionet-cli check\" names every such place.";
constexpr std::string_view kSeeOutput =
    "See that this file or folder is there, that it may be read and written, and that no other program is writing "
    "there, or choose another folder with --output FOLDER.";

// What the report of a failed run is about: the lines behind those of the last verse, which has none of its own.
std::string_view WithoutLastValues(std::string_view extraInfo) {
  const std::size_t verse = extraInfo.find("\r\nSR: ");
  const std::size_t end = verse == std::string_view::npos ? verse : extraInfo.find("\r\n", verse + 2);
  return end == std::string_view::npos ? std::string_view() : extraInfo.substr(end + 2);
}

// A run of "compile" that failed.
std::string_view NextStepOfCompile(int errorNumber, std::string_view extraInfo) {
  const std::string_view about = WithoutLastValues(extraInfo);
  const std::string_view item = about.substr(0, about.find("\r\n"));
  if (about.find("\r\nLine ") != std::string_view::npos) {
    return "Correct this line of the translation's text, or let Versalia install the translation anew; \"folionet-cli "
           "check\" names every such line.";
  }
  switch (errorNumber) {
    case kInvalidProcedureCall:
      return "Give an index page such as --index-address index.html.";
    case kOverflow:
      return kCorrectSetting;
    case kOutOfMemory:
      return "Shorten the custom header and footer and the texts of the settings, or correct the text of this chapter.";
    case kBadFileName:
      return "Choose other book titles with --language-file NAME, short names of pages with --set Use83=1, or another "
             "index page with --index-address NAME.";
    case kFileAlreadyOpen:
      return "Choose another folder with --output FOLDER.";
    case kDeviceIoError:
    case kDeviceUnavailable:
    case kDiskNotReady:
      return "See that the disk is connected and sound, or choose another folder with --output FOLDER.";
    case kDiskFull:
      return "Make room on the disk, or choose another folder with --output FOLDER, and run this command again.";
    case kTooManyFiles:
      return "Close other programs, and run this command again.";
    default:
      break;
  }
  if (item.ends_with("default.css")) {
    return "See that this style sheet may be read and written, give the folder that holds one with --program-folder "
           "FOLDER, or do without it by --set chkCSS=0.";
  }
  if (item.ends_with(".TXT") || item.ends_with(".txt")) {
    return "Let Versalia install the translation anew, or choose another with --translation NAME.";
  }
  if (errorNumber == kPathFileAccessError) {
    return "See what is in the place of this file or folder and move it away, or choose another folder with --output "
           "FOLDER.";
  }
  return kSeeOutput;
}

// A start that failed before anything was compiled.
std::string_view NextStepOfStart(int errorNumber, std::string_view extraInfo) {
  if (errorNumber == kInvalidProcedureCall || errorNumber == kOverflow || errorNumber == kTypeMismatch) {
    return kCorrectSetting;
  }
  if (extraInfo.find(".ini") != std::string_view::npos) {
    return "See that this is a file of settings that may be read, or move it away: then every setting has its default, "
           "and Versalia's folder can be given with --versalia-path FOLDER.";
  }
  return "See that this folder may be written, or give another one with --program-folder FOLDER.";
}

}  // namespace

std::string_view NextStep(std::string_view title) {
  for (const auto& [box, step] : kNextSteps) {
    if (box == title) return step;
  }
  return {};
}

std::string_view StepBeforeReport(std::string_view moduleLabel) {
  if (moduleLabel != "Populate Combos") return {};
  return "Give Versalia's folders with --versalia-path FOLDER, which holds Sysdefs and Index, and --module-path "
         "FOLDER, "
         "which holds Bible, or other book titles with --language-file NAME; \"folionet-cli check\" names what is "
         "wrong.";
}

std::string_view NextStepAfterReport(int errorNumber, std::string_view moduleLabel, std::string_view extraInfo) {
  if (moduleLabel == "Populate Combos") return {};   // told before
  if (moduleLabel == "Load Verse Count") return {};  // a box follows, with its step
  if (moduleLabel == "cmdCompile_Click") return NextStepOfCompile(errorNumber, extraInfo);
  if (moduleLabel == "BooksInChapters") return kCorrectIndex;
  if (moduleLabel == "GetLang") {
    return "Give Versalia's folder, which holds Sysdefs, with --versalia-path FOLDER; Sysdefs must hold a file of book "
           "titles such as BOOKS_SPANISH.TXT.";
  }
  if (moduleLabel == "Load_Custom_Header" || moduleLabel == "Load_Custom_Footer") {
    return "See that this file may be read and is no longer than the report says, or move it away to compile without "
           "it.";
  }
  if (moduleLabel == "Build Titles") {
    return "Change the text that the report shows, for this run with --set KEY=VALUE; \"folionet-cli list settings\" "
           "shows which KEY has it.";
  }
  if (moduleLabel == "GetVSCnt") {
    return "Correct the chapter in the translation's text; \"folionet-cli check\" names it.";
  }
  return NextStepOfStart(errorNumber, extraInfo);
}

}  // namespace folionet
