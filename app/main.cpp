#include <unistd.h>

#include <QApplication>
#include <QDir>
#include <QIcon>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string>
#include <variant>

#include "AppState.h"
#include "BackgroundWork.h"
#include "BuildInfo.h"
#include "FormArguments.h"
#include "FormStyle.h"
#include "FormUi.h"
#include "ProgramFolder.h"
#include "QtText.h"
#include "RunTimeError.h"
#include "SettingsStore.h"
#include "SiteMenu.h"
#include "SiteSettings.h"
#include "frmMain.h"

namespace folionet {
namespace {

// Qt ends a program that finds no display by abort(); a person is told what to do instead, last. What Qt has to say
// helps only where there should be a display.
void TellNoDisplay(QtMsgType type, const QMessageLogContext& /*context*/, const QString& message) {
  if (type != QtFatalMsg) return;
  const bool hasDisplay = std::getenv("DISPLAY") != nullptr || std::getenv("WAYLAND_DISPLAY") != nullptr;
  const QByteArray detail = hasDisplay ? message.trimmed().toLocal8Bit() + '\n' : QByteArray();
  std::fprintf(stderr,
               "%sfolionet: the form cannot be opened, for there is no display. \"folionet-cli compile\" needs none.\n",
               detail.constData());
  _exit(kExitFailed);
}

std::string ProgramFolderOf(const std::string& chosen, UserInterface& ui) {
  try {
    return FindProgramFolder(chosen);
  } catch (const RunTimeError& error) {
    ui.ShowErrorReport({Procedure::kFormLoad, error});
    return ProgramFolderToRead(chosen);
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

// What a form that was open ended with: a status, or the site that it is to start again with.
struct FormEnd {
  int status = kExitFailed;
  std::optional<std::string> nextSite;
};

// Opens the form with the settings of a site, or with the person's own where `site` is empty.
FormEnd OpenForm(QApplication& app, const FormArguments& arguments, FormUi& ui, const std::string& site) {
  SettingsStore store(SettingsStore::DefaultFolder());
  FormEnd end;
  try {
    store.FinishChange();
    if (!site.empty()) store.UseSite(site);
  } catch (const RunTimeError& error) {
    ui.ShowErrorReport({Procedure::kFormLoad, error});
    if (store.SitePath() != site) return end;
  }
  AppState state{store, ui, ProgramFolderOf(arguments.programFolder, ui), arguments.folders};
  QDir::setCurrent(ToQt(state.programFolder));
  frmMain form(state);
  ui.SetForm(&form);
  // Not quit(), which would ask every window to close first.
  QObject::connect(&form, &frmMain::Ended, &app, [] { QApplication::exit(kExitDone); });
  QObject::connect(&form, &frmMain::SiteChosen, &app, [&](const std::string& path) {
    end.nextSite = path;
    QApplication::exit(kExitDone);
  });
  if (form.LoadForm()) {
    form.show();
    end.status = app.exec();
  }
  ui.SetForm(nullptr);
  return end;
}

int OpenForms(QApplication& app, const FormArguments& arguments) {
  FormUi ui;
  std::string site = arguments.site;
  for (;;) {
    if (const auto why = site.empty() ? std::nullopt : WhyNoSite(site)) {
      TellNoSite(*why, ui);
      return kExitUsage;
    }
    const FormEnd end = OpenForm(app, arguments, ui, site);
    if (!end.nextSite) return end.status;
    site = *end.nextSite;
  }
}

int RunProgram(int argc, char** argv) {
  // A limit on the size of files is a failure of the write that meets it, like a full disk.
  std::signal(SIGXFSZ, SIG_IGN);
  const auto arguments = ParseFormArguments(argc, argv);
  if (const auto* status = std::get_if<ExitStatus>(&arguments)) return *status;
  const QtMessageHandler handler = qInstallMessageHandler(TellNoDisplay);
  QApplication app(argc, argv);
  qInstallMessageHandler(handler);
  QApplication::setApplicationName(kApplicationTitle);
  QApplication::setApplicationVersion(kVersion);
  QApplication::setDesktopFileName(QStringLiteral("folionet"));
  QApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral("folionet")));
  QApplication::setQuitOnLastWindowClosed(false);
  DressApplication();
  QTranslator ours;
  QTranslator qts;
  SpeakDesktopLanguage(ours, qts);
  return OpenForms(app, std::get<FormArguments>(arguments));
}

}  // namespace
}  // namespace folionet

int main(int argc, char** argv) {
  const int status = folionet::RunProgram(argc, argv);
  folionet::EndWhereTasksRun(status);
  return status;
}
