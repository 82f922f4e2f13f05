#include <CLI/CLI.hpp>
#include <csignal>
#include <cstdio>

#include "BuildInfo.h"
#include "CheckCommand.h"
#include "CodePage.h"
#include "CompileCommand.h"
#include "ListCommand.h"
#include "ProgramFolder.h"
#include "RunTimeError.h"
#include "Session.h"
#include "Usage.h"
#include "VerifyCommand.h"

namespace folionet {
namespace {

// Help texts are wrapped by hand: a line holds 80 columns.

void AddCommonOptions(CLI::App& app, CommonOptions& common) {
  app.add_option("--versalia-path", common.folders.versaliaPath, "Holds Sysdefs and Index (default: Versalia's own)")
      ->type_name("FOLDER");
  app.add_option("--module-path", common.folders.modulePath,
                 "Holds Bible (default: Modules in a given Versalia\nfolder, else Versalia's own)")
      ->type_name("FOLDER");
  app.add_option("--program-folder", common.programFolder,
                 "Holds default.css (default: the program's if\nwritable, else ~/.local/share/Folionet)")
      ->type_name("FOLDER")
      ->check(MissingFolder, "");
  app.footer(
      "\"folionet-cli COMMAND --help\" shows a command's options. Exit status: 0 done;\n"
      "1 refused, or faults were found; 2 a wrong argument; 3 a failure.\n\n"
      "Example:\n"
      "  folionet-cli compile --output ~/site --index-address index.html");
}

void AddCompileOptions(CLI::App& compile, CompileArguments& arguments, CommonOptions& common) {
  compile.add_option("--translation", arguments.translation, "One of \"list translations\" (default: the first)")
      ->type_name("NAME|STEM");
  compile.add_option("--language-file", arguments.languageFile, "One of \"list languages\" (default: setting cboLang)")
      ->type_name("NAME");
  compile.add_option("--start-book", arguments.startBook, "First book of the index page (default: 1)")
      ->type_name("N|TITLE");
  compile.add_option("--end-book", arguments.endBook, "Last book of the index page (default: 66)")
      ->type_name("N|TITLE");
  compile.add_option("--output", arguments.output, "Where the pages go (default: the setting Dir1)")
      ->type_name("FOLDER");
  compile.add_option("--index-address", arguments.indexAddress, "Name or address of the index page (no default)")
      ->type_name("TEXT");
  compile.add_option("--set", arguments.settings, "Gives a setting a value; repeatable (no default)")
      ->type_name("KEY=VALUE")
      ->expected(1)
      ->take_all();
  compile.add_option("--sitemap", arguments.sitemap, "Write sitemap.xml for this address (default: none)")
      ->type_name("ADDRESS");
  compile.add_flag("--list-changed", arguments.listChanged, "Print the names of the pages whose bytes changed");
  compile.add_flag("--dry-run", arguments.dryRun, "Write nothing; print what each page would become");
  compile.add_flag("--quiet", common.quiet, "Say nothing when all goes well");
  compile.footer(
      "Pages that are there are overwritten, those of books before the start book\n"
      "deleted. \"folionet-cli list settings\" shows the settings and their values.\n\n"
      "Example:\n"
      "  folionet-cli compile --translation KJV --output ~/site \\\n"
      "                       --index-address index.html --set chkCSS=1");
}

void AddList(CLI::App& app, std::string& subject) {
  CLI::App* list = app.add_subcommand("list", "Shows what can be chosen, or the settings");
  const auto isSubject = [](const std::string& what) {
    const bool isKnown = what == "translations" || what == "languages" || what == "books" || what == "settings";
    return isKnown ? std::string() : "translations, languages, books or settings was expected: \"" + what + "\"";
  };
  list->add_option("WHAT", subject,
                   "translations: file stem and name of each;\n"
                   "languages: the files of book titles;\n"
                   "books: number and title, as cboLang has them;\n"
                   "settings: KEY=VALUE, stored or default")
      ->required()
      ->type_name("")
      ->check(isSubject, "");
  list->footer(
      "Example:\n"
      "  folionet-cli list translations");
}

void AddCheck(CLI::App& app, std::string& translation, std::vector<std::string>& settings) {
  CLI::App* check = app.add_subcommand("check", "Reads a library and names every fault in it");
  check->add_option("--translation", translation, "Display name or file stem (default: all of them)")
      ->type_name("NAME|STEM");
  check->add_option("--set", settings, "Gives a setting a value; repeatable (no default)")
      ->type_name("KEY=VALUE")
      ->expected(1)
      ->take_all();
  check->footer(
      "Prints each fault with file and line, then their number; changes nothing.\n"
      "Exit status 1 when there are faults.\n\n"
      "Example:\n"
      "  folionet-cli check --translation KJV");
}

void AddVerify(CLI::App& app, std::string& folder, std::string& indexName) {
  CLI::App* verify = app.add_subcommand("verify", "Reads a written site and names the broken links");
  verify->add_option("FOLDER", folder, "The folder of the site")->required()->type_name("");
  verify->add_option("--index", indexName, "File name of the index page (default: index.html,\nelse index.htm)")
      ->type_name("NAME");
  verify->footer(
      "Also lists the pages that the index page does not lead to. Changes nothing.\n"
      "Exit status 1 when a link is broken.\n\n"
      "Example:\n"
      "  folionet-cli verify ~/site");
}

ExitStatus Parse(CLI::App& app, int argc, char** argv, bool& parsed) {
  for (int i = 1; i < argc; ++i) {
    if (!IsUtf8(argv[i])) {
      std::fprintf(stderr, "Argument %d is not UTF-8 text: give it in UTF-8.\n", i);
      return kExitUsage;
    }
  }
  try {
    app.parse(argc, argv);
    parsed = true;
    return kExitDone;
  } catch (const CLI::ParseError& error) {
    return app.exit(error) == 0 ? kExitDone : kExitUsage;
  }
}

ExitStatus Main(int argc, char** argv) {
  CLI::App app("Turns a Bible translation installed by Versalia into a static web site.", "folionet-cli");
  app.set_version_flag("--version", std::string("folionet-cli ") + kVersion);
  app.require_subcommand(1);
  app.fallthrough();
  CommonOptions common;
  AddCommonOptions(app, common);

  CompileArguments arguments;
  CLI::App* compile = app.add_subcommand("compile", "Writes a page for every chapter, and an index page");
  AddCompileOptions(*compile, arguments, common);

  std::string subject;
  AddList(app, subject);
  std::string translation;
  AddCheck(app, translation, arguments.settings);
  std::string folder;
  std::string indexName;
  AddVerify(app, folder, indexName);
  RefuseEmptyValues(app);
  app.failure_message(UsageText);

  bool parsed = false;
  const ExitStatus status = Parse(app, argc, argv, parsed);
  if (!parsed) return status;
  if (*compile) return RunCompile(common, arguments);
  if (app.got_subcommand("list")) return RunList(common, subject);
  if (app.got_subcommand("verify")) return RunVerify(folder, indexName);
  return RunCheck(common, translation, arguments.settings);
}

}  // namespace
}  // namespace folionet

int main(int argc, char** argv) {
  // A limit on the size of files is a failure of the write that meets it, like a full disk.
  std::signal(SIGXFSZ, SIG_IGN);
  int status = folionet::kExitFailed;
  try {
    status = folionet::Main(argc, argv);
  } catch (const folionet::ExitWith& exit) {
    status = exit.Status();
  } catch (const folionet::RunTimeError& error) {
    folionet::ConsoleUi(true).ShowErrorReport(error.Number(), "Form Load - MAIN", error.Extra());
  } catch (const std::exception& error) {
    std::fprintf(stderr, "folionet-cli: %s\n", error.what());
  }
  if (std::fflush(stdout) != 0 || std::ferror(stdout) != 0) {
    std::fputs("folionet-cli: standard output cannot be written. Send it to a file on a disk with room.\n", stderr);
    return folionet::kExitFailed;
  }
  return status;
}
