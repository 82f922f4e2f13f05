#include <CLI/CLI.hpp>
#include <cstdio>

#include "BuildInfo.h"
#include "CheckCommand.h"
#include "CodePage.h"
#include "CompileCommand.h"
#include "ListCommand.h"
#include "Session.h"
#include "VerifyCommand.h"

namespace folionet {
namespace {

void AddCommonOptions(CLI::App& app, CommonOptions& common) {
  app.add_option("--versalia-path", common.folders.versaliaPath, "Versalia's folder, for this run")
      ->type_name("FOLDER");
  app.add_option("--module-path", common.folders.modulePath, "Versalia's module folder, for this run")
      ->type_name("FOLDER");
  app.add_option("--program-folder", common.programFolder, "Where default.css and the custom header and footer are")
      ->type_name("FOLDER");
}

void AddCompileOptions(CLI::App& compile, CompileArguments& arguments, CommonOptions& common) {
  compile.add_option("--translation", arguments.translation, "Display name or file stem (the first of the catalogue)")
      ->type_name("NAME|STEM");
  compile.add_option("--language-file", arguments.languageFile, "File of book titles (the setting cboLang)")
      ->type_name("NAME");
  compile.add_option("--start-book", arguments.startBook, "First book of the index (1)")->type_name("N|TITLE");
  compile.add_option("--end-book", arguments.endBook, "Last book of the index (66)")->type_name("N|TITLE");
  compile.add_option("--output", arguments.output, "Where the pages go; made when missing (the setting Dir1)")
      ->type_name("FOLDER");
  compile.add_option("--index-address", arguments.indexAddress, "Address of the index page, such as index.html")
      ->type_name("TEXT");
  compile.add_option("--set", arguments.settings, "Gives a setting a value for this run; may be repeated")
      ->type_name("KEY=VALUE")
      ->expected(1)
      ->take_all();
  compile.add_option("--sitemap", arguments.sitemap, "Also write sitemap.xml; the folder's public address")
      ->type_name("ADDRESS");
  compile.add_flag("--list-changed", arguments.listChanged, "Print the names of the pages whose bytes changed");
  compile.add_flag("--dry-run", arguments.dryRun, "Write nothing; print what would be new, changed, the same, removed");
  compile.add_flag("--quiet", common.quiet, "Say nothing when all goes well");
}

ExitStatus Parse(CLI::App& app, int argc, char** argv, bool& parsed) {
  for (int i = 1; i < argc; ++i) {
    if (!IsUtf8(argv[i])) {
      std::fprintf(stderr, "Argument %d is not UTF-8 text.\n", i);
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
  CLI::App* list = app.add_subcommand("list", "Shows what there is to choose from, or the settings");
  list->add_option("WHAT", subject, "translations, languages, books or settings")
      ->required()
      ->check(CLI::IsMember({"translations", "languages", "books", "settings"}));

  std::string translation;
  CLI::App* check = app.add_subcommand("check", "Reads a library through and names every fault in it");
  check->add_option("--translation", translation, "Display name or file stem (every translation)")
      ->type_name("NAME|STEM");

  std::string folder;
  std::string indexName;
  CLI::App* verify =
      app.add_subcommand("verify", "Reads a written site through and names every link that leads nowhere");
  verify->add_option("FOLDER", folder, "The folder of the site")->required();
  verify->add_option("--index", indexName, "File name of the index page (index.html or index.htm)")->type_name("NAME");

  bool parsed = false;
  const ExitStatus status = Parse(app, argc, argv, parsed);
  if (!parsed) return status;
  if (*compile) return RunCompile(common, arguments);
  if (*list) return RunList(common, subject);
  if (*verify) return RunVerify(folder, indexName);
  return RunCheck(common, translation);
}

}  // namespace
}  // namespace folionet

int main(int argc, char** argv) {
  int status = folionet::kExitFailed;
  try {
    status = folionet::Main(argc, argv);
  } catch (const folionet::ExitWith& exit) {
    status = exit.Status();
  } catch (const std::exception& error) {
    std::fprintf(stderr, "folionet-cli: %s\n", error.what());
  }
  if (std::fflush(stdout) != 0 || std::ferror(stdout) != 0) {
    std::fputs("folionet-cli: standard output cannot be written\n", stderr);
    return folionet::kExitFailed;
  }
  return status;
}
