#pragma once

#include <chrono>
#include <cstdio>
#include <initializer_list>
#include <string>
#include <string_view>

#include "CommonOptions.h"
#include "ExitStatus.h"
#include "Finding.h"
#include "UserInterface.h"

namespace folionet {

// The command line's half of the way to the person, and the only place of it that prints: what was asked for on
// standard output; on standard error messages and reports in the words of the boxes, each refusal with a line that says
// what to do next, and progress when that is a terminal. Control characters are shown escaped, so that nothing that a
// file brings is obeyed by a terminal or passes for a line of ours. Nothing is ever asked.
class ConsoleUi : public UserInterface {
 public:
  explicit ConsoleUi(const CommonOptions& common = {});
  ~ConsoleUi() override;

  void ShowMessage(const Message& message) override;
  bool AskYesNo(const std::string& title, const std::string& text) override;
  std::optional<std::string> AskText(const InputBox& box) override;
  void ShowErrorReport(const ErrorReport& report) override;
  void SetPanel(int panel, std::string_view text) override;

  // A line of what was asked for.
  void Print(std::string_view line);

  // The fields of one, each escaped, with a tab between.
  void Print(std::initializer_list<std::string> fields);

  // The lines of a text of the program's own, such as its help; the last need not end, and an empty text is none.
  void PrintText(std::string_view text);

  // A line for the person, beside what was asked for; false when it cannot be written.
  bool Tell(std::string_view line);
  void TellText(std::string_view text);

  // Something that was looked for and found, on standard output, as a line or as JSON.
  void Show(const Finding& finding);

  // Something that was found beside what was asked for: on standard error, or with the others as JSON.
  void Remark(const Finding& finding);

  // What nobody looked for: on standard error, with the remedy, or with the others as JSON.
  void Warn(Finding finding);

  // The last line of what was asked for, that counts it, the worst of it being `worst`; not where all goes well and
  // nothing is to be said, nor in JSON.
  void Sum(const std::string& line, Severity worst);

  // Hands on what was printed by now; false when that cannot be done.
  bool Flush();

  // The same at the end, saying so when it cannot be done.
  bool Finish();

  // kExitDone, or kExitRefused when there were warnings and they are to count.
  ExitStatus Done() const;

  bool IsJson() const { return m_common.json; }
  bool IsQuiet() const { return m_common.quiet; }

  // A command may have results of a run not told, since it tells its own.
  void HideResults() { m_showsResults = false; }

 private:
  void EndProgress();
  void WriteText(std::FILE* stream, std::string_view text);
  bool Write(std::FILE* stream, std::string_view text, std::string_view kept);

  CommonOptions m_common;
  bool m_showsResults;
  bool m_showsProgress;
  bool m_progressShown = false;
  bool m_hasWarned = false;
  std::chrono::steady_clock::time_point m_lastProgress;
};

}  // namespace folionet
