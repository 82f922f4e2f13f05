#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "Colours.h"
#include "ErrorReport.h"
#include "PageOptions.h"

namespace folionet {

enum class MessageIcon { kInformation, kWarning, kCritical };

// What a box is about, for those who tell a person what to do next.
enum class Topic {
  kOther,
  kResult,  // what was asked for: the command line gives it on standard output
  kNoOutputFolder,
  kNoTranslation,
  kNoIndexAddress,
  kNoBookTitles,
  kLongExtension,
  kShortName,
  kNoReadableText,
  kNoChapterIndex,
  kBadChapterIndex,
};

struct Message {
  MessageIcon icon = MessageIcon::kInformation;
  std::string title;
  std::string text;  // lines joined by CR LF
  Topic topic = Topic::kOther;
};

// A folder of a library that a text is asked for.
enum class LibraryFolder { kNone, kInstallation, kModules };

struct InputBox {
  std::string prompt;
  std::string title;
  std::string defaultText;
  LibraryFolder folder = LibraryFolder::kNone;
};

// The one way to the person who uses the program. The form shows boxes, the command line prints the same words, tests
// script the answers. All texts are UTF-8; names from Versalia's files are decoded before they get here.
class UserInterface {
 public:
  virtual ~UserInterface() = default;

  virtual void ShowMessage(const Message& message) = 0;

  // A yes/no question whose default button is No. True for Yes; false where nobody can be asked.
  virtual bool AskYesNo(const std::string& title, const std::string& text) = 0;

  // The text entered; empty when the person cancelled; nothing where nobody can be asked.
  virtual std::optional<std::string> AskText(const InputBox& box) = 0;

  // The one error report. Returns when the person has closed it.
  virtual void ShowErrorReport(const ErrorReport& report) = 0;

  // Sets a panel of the status bar, counted from 1.
  virtual void SetPanel(int panel, std::string_view text) = 0;

  // Puts the focus on the control of that name; only a form has one.
  virtual void FocusControl(std::string_view /*name*/) {}

  // The choosers. Each gives back what it was given when the person cancels or where there is nobody to choose; of
  // colours, fonts and files to save, nothing: to choose the one that is shown is a choice.
  virtual std::optional<Colour> ChooseColour(Colour /*initial*/) { return std::nullopt; }
  virtual std::optional<SampleText> ChooseFont(const SampleText& /*initial*/) { return std::nullopt; }
  virtual std::string ChooseFile(const std::string& /*filter*/, const std::string& previous) { return previous; }
  // A file to be written, with this suffix unless it is given another; empty when the person cancelled.
  virtual std::string ChooseFileToSave(const std::string& /*name*/, const std::string& /*suffix*/,
                                       const std::string& /*initial*/) {
    return {};
  }
  virtual std::string ChooseFolder(const std::string& initial, const std::string& /*title*/) { return initial; }

  // Shows a page that was written in the person's browser.
  virtual void ShowPage(const std::string& /*path*/) {}
};

}  // namespace folionet
