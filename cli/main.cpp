#include <CLI/CLI.hpp>
#include <csignal>
#include <cstdio>

#include "BuildInfo.h"
#include "CheckCommand.h"
#include "CodePage.h"
#include "CompileCommand.h"
#include "ListCommand.h"
#include "RunTimeError.h"
#include "Session.h"
#include "VerifyCommand.h"

namespace folionet {
namespace {

// Help texts are wrapped by hand: a line holds 80 columns.

void AddCommonOptions(CLI::App& app, CommonOptions& common) {
  app.add_option("--versalia-path", common.folders.versaliaPath,
                 "Versalia's folder, which holds Sysdefs and Index\n(default: Versalia's own setting)")
      ->type_name("FOLDER");
  app.add_option("--module-path", common.folders.modulePath,
                 "Versalia's module folder, which holds Bible\n(default: Modules in a given Versalia folder, "
                 "else\nVersalia's own setting)")
      ->type_name("FOLDER");
  app.add_option("--program-folder", common.programFolder,
                 "Holds default.css and the custom header and footer\n(default: the program's, if it can be written "
                 "to,\nelse ~/.local/share/Folionet)")
      ->type_name("FOLDER");
  app.footer(
      "Every command knows the three folders; they may stand before or after it.\n"
      "\"folionet-cli COMMAND --help\" shows the options of a command.\n\n"
      "Exit status: 0 done; 1 refused, or faults were found; 2 a wrong argument;\n"
      "3 a failure, with the whole report on standard error.\n\n"
      "Example:\n"
      "  folionet-cli compile --output ~/site --index-address index.html");
}

void AddCompileOptions(CLI::App& compile, CompileArguments& arguments, CommonOptions& common) {
  compile
      .add_option("--translation", arguments.translation,
                  "Display name or file stem (default: the first of\n\"list translations\")")
      ->type_name("NAME|STEM");
  compile
      .add_option("--language-file", arguments.languageFile,
                  "Book titles, one of \"list languages\" (default: the\nsetting cboLang, at first BOOKS.TXT)")
      ->type_name("NAME");
  compile.add_option("--start-book", arguments.startBook, "First book of the index page (default: 1)")
      ->type_name("N|TITLE");
  compile.add_option("--end-book", arguments.endBook, "Last book of the index page (default: 66)")
      ->type_name("N|TITLE");
  compile
      .add_option("--output", arguments.output,
                  "Where the pages go; made when missing (default:\nthe setting Dir1, the folder chosen in the form)")
      ->type_name("FOLDER");
  compile
      .add_option("--index-address", arguments.indexAddress,
                  "Name or address of the index page: .html, or .htm\nwith Use83=1 (no default)")
      ->type_name("TEXT");
  compile
      .add_option("--set", arguments.settings,
                  "Gives a setting a value for this run; repeatable\n(default: as \"list settings\" shows)")
      ->type_name("KEY=VALUE")
      ->expected(1)
      ->take_all();
  compile
      .add_option("--sitemap", arguments.sitemap,
                  "Also write sitemap.xml, for a site at this public\naddress (default: none is written)")
      ->type_name("ADDRESS");
  compile.add_flag("--list-changed", arguments.listChanged, "Print the names of the pages whose bytes changed");
  compile.add_flag("--dry-run", arguments.dryRun,
                   "Write nothing; print what would be new, changed,\nthe same, removed");
  compile.add_flag("--quiet", common.quiet, "Say nothing when all goes well");
  compile.footer(
      "Files in the output folder that bear a page's name are overwritten, and the\n"
      "pages of the books before the start book deleted.\n\n"
      "Example:\n"
      "  folionet-cli compile --translation KJV --output ~/site \\\n"
      "                       --index-address index.html --set chkCSS=1");
}

void AddList(CLI::App& app, std::string& subject) {
  CLI::App* list = app.add_subcommand("list", "Shows what can be chosen, or the settings");
  list->add_option("WHAT", subject,
                   "translations: file stem and name of each;\n"
                   "languages: the files of book titles;\n"
                   "books: number and title, as cboLang has them;\n"
                   "settings: KEY=VALUE, stored or default")
      ->required()
      ->type_name("")
      ->check(CLI::IsMember({"translations", "languages", "books", "settings"}).description(""));
  list->footer(
      "Example:\n"
      "  folionet-cli list translations");
}

void AddCheck(CLI::App& app, std::string& translation, std::vector<std::string>& settings) {
  CLI::App* check = app.add_subcommand("check", "Reads a library and names every fault in it");
  check->add_option("--translation", translation, "Display name or file stem (default: all of them)")
      ->type_name("NAME|STEM");
  check->add_option("--set", settings, "Gives a setting a value for this run")
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
    std::fputs("folionet-cli: standard output cannot be written\n", stderr);
    return folionet::kExitFailed;
  }
  return status;
}
