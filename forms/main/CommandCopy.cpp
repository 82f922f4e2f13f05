#include "CommandCopy.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QWidget>
#include <algorithm>
#include <string>
#include <string_view>
#include <utility>

#include "Installation.h"
#include "OptionTable.h"
#include "PageEncoding.h"
#include "ProgramFolder.h"
#include "QtText.h"
#include "RunTimeError.h"
#include "Text.h"
#include "TranslationNames.h"

namespace folionet {
namespace {

// The arguments of a command for a shell, each quoted where it must be.
class Command {
 public:
  void Add(std::string_view word) {
    if (!m_text.empty()) m_text += ' ';
    const auto isPlain = [](char c) {
      return IsLetterOrDigit(c) || std::string_view("_./:=@%+,-").find(c) != std::string_view::npos;
    };
    if (std::all_of(word.begin(), word.end(), isPlain)) {
      m_text += word;
      return;
    }
    m_text += '\'';
    for (const char c : word) {
      if (c == '\'') {
        m_text += "'\\''";
      } else {
        m_text += c;
      }
    }
    m_text += '\'';
  }

  // One word, so that a value may begin with "-".
  void Add(std::string_view option, std::string_view value) { Add(std::string(option).append("=").append(value)); }

  const std::string& Text() const { return m_text; }

 private:
  std::string m_text;
};

void AddFolders(const AppState& state, Command& command) {
  ModGlob found;
  LocateInstallation(state.store, {}, found);
  if (found.InstallPath != state.glob.InstallPath || found.ModulesPath != state.glob.ModulesPath) {
    command.Add("--versalia-path", state.glob.InstallPath);
    command.Add("--module-path", state.glob.ModulesPath);
  }
  if (state.programFolder != ProgramFolderToRead({})) command.Add("--program-folder", state.programFolder);
}

// A code that was typed into Page Encoding is in use and in no entry; one that an imported text brings needs none.
std::string ValueOf(const Option& option, const AppState& state) {
  std::string text = OptionText(option, state.options);
  const bool isCharset = option.key == "Charset";
  if (!isCharset && option.key != "Lang") return text;
  const std::string& code = isCharset ? state.texts.PageCharset : state.texts.PageLanguage;
  const std::string ofText = CodeOfText(state.glob.Imported, state.store, option.key);
  return (ofText.empty() ? EncodingCode(text, option.key) : ofText) == code ? text : code + " ";
}

void AddOptions(const AppState& state, Command& command) {
  for (const Option& option : OptionTable()) {
    // Those that have an option of their own.
    if (option.part == OptionPart::kFolders || option.part == OptionPart::kLanguageFile) continue;
    const std::string value = ValueOf(option, state);
    if (value == option.defaultText && value == state.store.Text(option.key)) continue;
    command.Add("--set");
    command.Add(std::string(option.key).append("=").append(value));
  }
}

// The command that compiles what the form would compile now: "folionet-cli compile --translation KJV ...". An option is
// in it where it is not the default or not what is stored, so that the command does the same later on, too. Throws
// RunTimeError for settings that cannot be read.
std::string CompileCommandLine(const CompileRequest& request, const AppState& state) {
  constexpr int kLastBook = kBooks - 1;
  const PageOptions untouched;
  Command command;
  command.Add("folionet-cli");
  command.Add("compile");
  AddFolders(state, command);
  if (request.cboBibleName >= 0) {
    const std::string& stem = state.glob.BibleFiles[static_cast<std::size_t>(request.cboBibleName)];
    command.Add("--translation", ShownStem(stem, state.codePage));
  }
  if (request.cboLang != untouched.main.cboLang || request.cboLang != state.store.Text("cboLang")) {
    command.Add("--language-file", request.cboLang);
  }
  if (request.cboStartBook != 0 || request.cboEndBook != kLastBook || state.glob.Imported.IsThere()) {
    command.Add("--start-book", std::to_string(request.cboStartBook + 1));
    command.Add("--end-book", std::to_string(request.cboEndBook + 1));
  }
  if (!state.glob.OutputFolder.empty()) command.Add("--output", request.txtOutputPath);
  if (request.options.txthttpRoot != untouched.txthttpRoot) {
    command.Add("--index-address", request.options.txthttpRoot);
  }
  if (!request.sitemapAddress.empty()) command.Add("--sitemap", request.sitemapAddress);
  if (request.onlyChosen) command.Add("--only-chosen");
  AddOptions(state, command);
  return command.Text();
}

}  // namespace

void OfferCommandCopy(AppState& state, QWidget& button, std::function<std::optional<CompileRequest>()> gather) {
  auto* action = new QAction(QObject::tr("Copy as command line"), &button);
  action->setObjectName(QStringLiteral("actCopyCommand"));
  action->setShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_C);
  button.addAction(action);
  button.setContextMenuPolicy(Qt::ActionsContextMenu);
  QObject::connect(action, &QAction::triggered, &button, [&state, gather = std::move(gather)] {
    const std::optional<CompileRequest> request = gather();
    if (!request) return;
    try {
      QApplication::clipboard()->setText(ToQt(CompileCommandLine(*request, state)));
      state.ui.SetPanel(1, FromQt(QObject::tr("The command is on the clipboard.")));
    } catch (const RunTimeError& error) {
      state.ui.ShowErrorReport({Procedure::kFormLoad, error});
    }
  });
}

}  // namespace folionet
