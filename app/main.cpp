#include <unistd.h>

#include <CLI/CLI.hpp>
#include <QApplication>
#include <QDir>
#include <QIcon>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>
#include <algorithm>
#include <array>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

#include "AppState.h"
#include "BuildInfo.h"
#include "CodePage.h"
#include "FormStyle.h"
#include "FormUi.h"
#include "ProgramFolder.h"
#include "QtText.h"
#include "RunTimeError.h"
#include "SettingsStore.h"
#include "frmMain.h"

namespace folionet {
namespace {

enum ExitStatus { kExitDone = 0, kExitUsage = 2, kExitFailed = 3 };

struct Arguments {
  GivenFolders folders;
  std::string programFolder;
};

// The arguments without those that every Qt program takes, with one or two hyphens: the application reads them itself.
std::vector<std::string> WithoutThoseOfQt(int argc, char** argv) {
  constexpr std::array kWithValue{"style",           "stylesheet",  "platform",     "platformpluginpath",
                                  "platformtheme",   "plugin",      "display",      "geometry",
                                  "qwindowgeometry", "qwindowicon", "qwindowtitle", "session"};
  constexpr std::string_view kReverse = "reverse";
  std::vector<std::string> own;
  for (int i = 1; i < argc; ++i) {
    const std::string_view argument = argv[i];
    const bool isOption = argument.starts_with('-');
    const std::string_view name = argument.substr(std::min(argument.find_first_not_of('-'), argument.size()));
    if (isOption && name == kReverse) continue;
    if (isOption && std::any_of(kWithValue.begin(), kWithValue.end(), [&](std::string_view taken) {
          return name == taken || (name.starts_with(taken) && name.substr(taken.size()).starts_with('='));
        })) {
      if (name.find('=') == std::string_view::npos) ++i;
      continue;
    }
    own.emplace_back(argument);
  }
  return own;
}

// A folder as it is meant where the program is started: the form works in another one.
void MakeWhole(std::string& folder) {
  std::error_code ignored;
  const std::filesystem::path whole = std::filesystem::absolute(folder, ignored);
  if (!folder.empty() && !ignored) folder = whole.string();
}

// True when the form is to be opened; otherwise `status` holds.
bool Parse(int argc, char** argv, Arguments& arguments, int& status) {
  CLI::App app("Turns a Bible translation installed by Versalia into a static web site.", "folionet");
  app.set_version_flag("--version", std::string("folionet ") + kVersion);
  app.add_option("--versalia-path", arguments.folders.versaliaPath, "Holds Sysdefs and Index (default: Versalia's own)")
      ->type_name("FOLDER");
  app.add_option("--module-path", arguments.folders.modulePath,
                 "Holds Bible (default: Modules in a given Versalia\nfolder, else Versalia's own)")
      ->type_name("FOLDER");
  app.add_option("--program-folder", arguments.programFolder,
                 "Holds default.css (default: the program's if\nwritable, else ~/.local/share/Folionet)")
      ->type_name("FOLDER");
  app.footer(
      "The folders count for this run only. F1 in the form explains every control.\n\n"
      "Example:\n"
      "  folionet --versalia-path ~/library");
  const auto refuseEmpty = [](const std::string& value) {
    return value.empty() ? std::string("a value was expected, but the text given is empty") : std::string();
  };
  for (const char* option : {"--versalia-path", "--module-path", "--program-folder"}) {
    app.get_option(option)->check(refuseEmpty, "");
  }
  app.get_option("--program-folder")->check(MissingFolder, "");
  app.failure_message([](const CLI::App* /*app*/, const CLI::Error& error) {
    return std::string(error.what()) + "\nSee \"folionet --help\".\n";
  });
  for (int i = 1; i < argc; ++i) {
    if (!IsUtf8(argv[i])) {
      std::fprintf(stderr, "Argument %d is not UTF-8 text: give it in UTF-8.\n", i);
      status = kExitUsage;
      return false;
    }
  }
  std::vector<std::string> own = WithoutThoseOfQt(argc, argv);
  std::reverse(own.begin(), own.end());  // as the parser wants them
  try {
    app.parse(std::move(own));
    for (std::string* folder : {&arguments.folders.versaliaPath, &arguments.folders.modulePath}) MakeWhole(*folder);
    MakeWhole(arguments.programFolder);
    return true;
  } catch (const CLI::ParseError& error) {
    status = app.exit(error) == 0 ? kExitDone : kExitUsage;
    return false;
  }
}

// Qt ends a program that finds no display by abort(); a person is told what to do instead, last. What Qt has to say
// helps only where there should be a display.
void TellNoDisplay(QtMsgType type, const QMessageLogContext& /*context*/, const QString& message) {
  if (type != QtFatalMsg) return;
  const bool hasDisplay = std::getenv("DISPLAY") != nullptr || std::getenv("WAYLAND_DISPLAY") != nullptr;
  const QByteArray detail = hasDisplay ? message.trimmed().toLocal8Bit() + '\n' : QByteArray();
  std::fprintf(stderr,
               "%sfolionet: the form cannot be opened, for there is no display. \"folionet-cli compile\" needs none.\n",
               detail.constData());
  std::fflush(stderr);
  _exit(kExitFailed);
}

std::string ProgramFolderOf(const std::string& chosen, UserInterface& ui) {
  try {
    return FindProgramFolder(chosen);
  } catch (const RunTimeError& error) {
    ui.ShowErrorReport({Procedure::kFormLoad, error});
    return ExecutableFolder();
  }
}

// The desktop's language for what is ours to word, and its direction for all of the layout, also where there is no
// translation into it. `ours` and `qts` must outlive the application's windows.
void SpeakDesktopLanguage(QTranslator& ours, QTranslator& qts) {
  // Of the first language alone: a person of English and German would get German, which has a file, for English.
  const QLocale locale(QLocale::system().uiLanguages().value(0));
  const QString separator = QStringLiteral("_");
  if (qts.load(locale, QStringLiteral("qtbase"), separator, QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
    QApplication::installTranslator(&qts);
  }
  if (ours.load(locale, QStringLiteral("folionet"), separator, QStringLiteral(":/translations"))) {
    QApplication::installTranslator(&ours);
  }
  if (locale.textDirection() == Qt::RightToLeft) QApplication::setLayoutDirection(Qt::RightToLeft);
}

int OpenForm(QApplication& app, const Arguments& arguments) {
  SettingsStore store(SettingsStore::DefaultFolder());
  FormUi ui;
  try {
    store.FinishChange();
  } catch (const RunTimeError& error) {
    ui.ShowErrorReport({Procedure::kFormLoad, error});
  }
  AppState state{store, ui, ProgramFolderOf(arguments.programFolder, ui), arguments.folders};
  QDir::setCurrent(ToQt(state.programFolder));
  frmMain form(state);
  ui.SetForm(&form);
  // Not quit(), which would ask every window to close first.
  QObject::connect(&form, &frmMain::Ended, &app, [] { QApplication::exit(kExitDone); });
  int status = kExitFailed;
  if (form.LoadForm()) {
    form.show();
    status = app.exec();
  }
  ui.SetForm(nullptr);
  return status;
}

}  // namespace
}  // namespace folionet

int main(int argc, char** argv) {
  // A limit on the size of files is a failure of the write that meets it, like a full disk.
  std::signal(SIGXFSZ, SIG_IGN);
  int status = 0;
  folionet::Arguments arguments;
  if (!folionet::Parse(argc, argv, arguments, status)) return status;
  const QtMessageHandler handler = qInstallMessageHandler(folionet::TellNoDisplay);
  QApplication app(argc, argv);
  qInstallMessageHandler(handler);
  QApplication::setApplicationName(folionet::kApplicationTitle);
  QApplication::setApplicationVersion(folionet::kVersion);
  QApplication::setDesktopFileName(QStringLiteral("folionet"));
  QApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral("folionet")));
  QApplication::setQuitOnLastWindowClosed(false);
  folionet::DressApplication();
  QTranslator ours;
  QTranslator qts;
  folionet::SpeakDesktopLanguage(ours, qts);
  return folionet::OpenForm(app, arguments);
}
