#include "NextSteps.h"

namespace folionet {
namespace {

constexpr std::string_view kCorrectSetting =
    "Correct the setting in its file, or give it for this run with --set KEY=VALUE; \"folionet-cli list settings\" "
    "shows all of them.";
constexpr std::string_view kGiveDefinitions =
    "Give Versalia's folder, which holds Sysdefs, with --versalia-path FOLDER; Sysdefs must hold a file of book titles "
    "such as BOOKS_SPANISH.TXT.";

// A run of "compile" that failed.
std::string_view NextStepOfCompile(const ErrorReport& report) {
  if (report.line != 0) {
    return "Correct this line of the translation's text, or install the translation anew, in Versalia or by "
           "\"folionet-cli import --replace\"; \"folionet-cli "
           "check\" names every such line.";
  }
  switch (report.number) {
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
  if (report.subject == Subject::kStyleSheet) {
    return "See that this style sheet may be read and written, give the folder that holds one with --program-folder "
           "FOLDER, or do without it by --set chkCSS=0.";
  }
  if (report.subject == Subject::kVerseFile) {
    return "Let Versalia install the translation anew, or choose another with --translation NAME.";
  }
  if (report.number == kPathFileAccessError) {
    return "See what is in the place of this file or folder and move it away, or choose another folder with --output "
           "FOLDER.";
  }
  return "See that this file or folder is there, that it may be read and written, and that no other program is writing "
         "there, or choose another folder with --output FOLDER.";
}

// A start that failed before anything was compiled.
std::string_view NextStepOfStart(const ErrorReport& report) {
  switch (report.subject) {
    case Subject::kSetting:
      return kCorrectSetting;
    case Subject::kUnfinishedChange:
      return "Do as the report says, or see that this file is there and may be written, and run this command again.";
    case Subject::kSettingsFile:
      return "See that this is a file of settings that may be read, or move it away: then every setting has its "
             "default, and Versalia's folder can be given with --versalia-path FOLDER.";
    case Subject::kEncodingList:
      if (report.line == 0) {
        return "See that this list is there and may be read, or give another folder with --program-folder FOLDER.";
      }
      return "Correct this line of the list, a code and a name in quotation marks with a comma between, or give "
             "another folder with --program-folder FOLDER.";
    case Subject::kDefinitionsFolder:
      return kGiveDefinitions;
    case Subject::kProgramFolder:
      return "See that this folder may be written, or give another one with --program-folder FOLDER.";
    default:
      return "See that this file or folder is there and may be read, and run this command again.";
  }
}

}  // namespace

std::string_view NextStep(Topic topic) {
  switch (topic) {
    case Topic::kNoOutputFolder:
      return "Give one with --output FOLDER.";
    case Topic::kNoTranslation:
      return "Choose another with --translation NAME; \"folionet-cli list translations\" shows them.";
    case Topic::kNoIndexAddress:
      return "Give the name or address of the index page, such as --index-address index.html.";
    case Topic::kNoBookTitles:
      return "Give one with --language-file NAME; \"folionet-cli list languages\" shows them.";
    case Topic::kLongExtension:
      return "Give an address such as --index-address index.html, or short names with --set Use83=1.";
    case Topic::kShortName:
      return "Give an address such as --index-address index.htm, or long names with --set Use83=0.";
    case Topic::kNoReadableText:
      return "No translation has a text that can be read where Versalia keeps it: see \"folionet-cli check\".";
    case Topic::kNoChapterIndex:
      return "Then run this command again, or choose another translation with --translation NAME.";
    case Topic::kBadChapterIndex:
      return "Then run this command again; \"folionet-cli check\" names what is wrong in an index that is there.";
    case Topic::kOther:
    case Topic::kResult:
      break;
  }
  return {};
}

std::string_view StepBeforeReport(Procedure procedure) {
  if (procedure != Procedure::kPopulateCombos) return {};
  return "Give Versalia's folders with --versalia-path FOLDER, which holds Sysdefs and Index, and --module-path "
         "FOLDER, which holds Bible, or other book titles with --language-file NAME; \"folionet-cli check\" names what "
         "is wrong. Without Versalia, import a text: \"folionet-cli import FILE\".";
}

std::string_view NextStepAfterReport(const ErrorReport& report) {
  switch (report.procedure) {
    case Procedure::kPopulateCombos:  // told before
    case Procedure::kLoadVerseCount:  // a box follows, with its step
      return {};
    case Procedure::kCompile:
      return NextStepOfCompile(report);
    case Procedure::kBooksInChapters:
      return "Correct the place that the report names, or remove this index and run Versalia on the translation, which "
             "makes it anew; \"folionet-cli check\" names every such place.";
    case Procedure::kGetLang:
      return kGiveDefinitions;
    case Procedure::kLoadCustomHeader:
    case Procedure::kLoadCustomFooter:
      return "See that this file may be read and is no longer than the report says, or move it away to compile without "
             "it.";
    case Procedure::kBuildTitles:
      return "Change the text that the report shows, for this run with --set KEY=VALUE; \"folionet-cli list "
             "settings\" shows which KEY has it.";
    case Procedure::kGetVSCnt:
      return "Correct the chapter in the translation's text; \"folionet-cli check\" names it.";
    default:
      return NextStepOfStart(report);
  }
}

}  // namespace folionet
