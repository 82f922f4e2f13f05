#include "Arguments.h"

#include <CLI/CLI.hpp>
#include <filesystem>
#include <memory>
#include <sstream>
#include <system_error>
#include <vector>

#include "BuildInfo.h"
#include "CheckCommand.h"
#include "CompileCommand.h"
#include "ImportCommand.h"
#include "ListCommand.h"
#include "ProgramFolder.h"
#include "SiteSettings.h"
#include "Text.h"
#include "Utf8.h"
#include "VerifyCommand.h"

namespace folionet {
namespace {

// Help texts are wrapped by hand: a line holds 80 columns.

void AddCommonOptions(CLI::App& app, CommonOptions& common) {
  app.add_option("--versalia-path", common.folders.versaliaPath, "Holds Sysdefs and Index (default: Versalia's own)")
      ->type_name("FOLDER")
      ->check(MissingFolder, "");
  app.add_option("--module-path", common.folders.modulePath, "Holds Bible (default: Modules in --versalia-path)")
      ->type_name("FOLDER")
      ->check(MissingFolder, "");
  app.add_option("--program-folder", common.programFolder, "default.css (default: ~/.local/share/Folionet)")
      ->type_name("FOLDER")
      ->check(MissingFolder, "");
  app.add_flag("--quiet", common.quiet, "Say nothing when all goes well");
  app.add_flag("--strict", common.strict, "End with 1 when there were warnings");
  app.footer(
      "More: COMMAND --help; man folionet-cli; /usr/share/doc/folionet-cli/guide.html\n\n"
      "Example:\n"
      "  folionet-cli compile --output ~/site --index-address index.html");
}

void AddSettings(CLI::App& command, std::vector<std::string>& settings) {
  command.add_option("--set", settings, "Gives a setting a value; repeatable (no default)")
      ->type_name("KEY=VALUE")
      ->expected(1)
      ->take_all();
}

// What cannot be a site's file is refused; an empty text is told of elsewhere.
std::string WhatIsNoSite(const std::string& path) {
  const auto why = path.empty() ? std::nullopt : WhyNoSite(path);
  return why ? why->InEnglish() : std::string();
}

// A file of another kind is never replaced.
std::string WhatCannotBecomeASite(const std::string& path) {
  std::error_code ignored;
  if (std::filesystem::exists(path, ignored)) return WhatIsNoSite(path);
  return MissingFolder(std::filesystem::path(path).parent_path().string());
}

void AddSite(CLI::App& command, CommonOptions& common) {
  command.add_option("--settings", common.site, "A site's file: its options, books, folder, ...")
      ->type_name("FILE")
      ->check(WhatIsNoSite, "");
}

CLI::Option* AddJson(CLI::App& command, CommonOptions& common) {
  return command.add_flag("--json", common.json, "Print JSON, an object a line");
}

void AddCompile(CLI::App& app, Arguments& asked) {
  CLI::App& compile = *app.add_subcommand("compile", "Writes a page for every chapter, and an index page");
  const auto arguments = std::make_shared<CompileArguments>();
  compile.add_option("--translation", arguments->translation, "One of \"list translations\" (default: the first)")
      ->type_name("NAME|STEM");
  compile
      .add_option("--language-file", arguments->languageFile, "One of \"list languages\" (default: setting cboLang)")
      ->type_name("NAME");
  CLI::Option* first =
      compile.add_option("--start-book", arguments->startBook, "First book; pages of those before go (default: 1)");
  CLI::Option* last = compile.add_option("--end-book", arguments->endBook, "Last book of the index page (default: 66)");
  first->option_text("BOOK");
  last->option_text("BOOK");
  compile.add_option("--books", arguments->books, "Both: NT, Gospels, Matthew-Acts (default: none)")
      ->option_text("BOOKS")
      ->excludes(first)
      ->excludes(last);
  compile.add_option("--output", arguments->output, "Where pages go, over those there (default: Dir1)")
      ->type_name("FOLDER");
  compile.add_option("--index-address", arguments->indexAddress, "Name or address of the index page (no default)")
      ->type_name("TEXT");
  AddSettings(compile, arguments->settings);
  AddSite(compile, asked.common);
  CLI::Option* save =
      compile
          .add_option("--save-settings", arguments->saveSettings, "Make such a file of this compile (default: none)")
          ->option_text("FILE")
          ->check(WhatCannotBecomeASite, "");
  compile.add_option("--sitemap", arguments->sitemap, "Write sitemap.xml for this address (default: none)")
      ->type_name("ADDRESS");
  compile.add_flag("--only-chosen", arguments->onlyChosen, "Leave no page of the books after the end book");
  compile.add_flag("--list-changed", arguments->listChanged, "Print the names of the pages whose bytes changed");
  CLI::Option* dryRun =
      compile.add_flag("--dry-run", arguments->dryRun, "Write nothing; print what each page would become");
  dryRun->excludes(save)->option_text(" ");
  AddJson(compile, asked.common)->needs(dryRun)->option_text(" ");
  compile.footer(
      "Example:\n"
      "  folionet-cli compile --books NT --output ~/site --index-address index.html");
  compile.callback([&asked, arguments] {
    asked.run = [arguments](const CommonOptions& common, ConsoleUi& ui) { return RunCompile(common, *arguments, ui); };
  });
}

void AddImport(CLI::App& app, Arguments& asked) {
  CLI::App& command = *app.add_subcommand("import", "Makes a translation of a Bible text in a file");
  const auto arguments = std::make_shared<ImportArguments>();
  command
      .add_option("PATH", arguments->paths,
                  "Files, folders or archives, or - for standard\n"
                  "input: USFM, USX, USFX, OSIS, Zefania XML, or one\nverse a line")
      ->required()
      ->type_name("");
  command.add_option("--name", arguments->name, "Display name (default: the one in the text, or\nthe file's)")
      ->type_name("NAME");
  command.add_option("--stem", arguments->stem, "Stem of its files (default: made of the name)")->type_name("STEM");
  command.add_option("--into", arguments->into, "The library (default:\n~/.local/share/Folionet/library)")
      ->type_name("FOLDER");
  command.add_option("--titles", arguments->titles, "A file of book titles (default: the text's own)")
      ->type_name("BOOKS_FILE");
  command.add_option("--charset", arguments->charset, "Of the files (default: what they tell, or UTF-8)")
      ->type_name("NAME");
  command
      .add_option("--language", arguments->language,
                  "Code of its language (default: what the text\ntells, or its letters)")
      ->type_name("CODE");
  command.add_flag("--replace", arguments->replace, "Replace the translation of this name or stem");
  CLI::Option* dryRun = command.add_flag("--dry-run", arguments->dryRun, "Write nothing; tell what would be imported");
  AddJson(command, asked.common)->needs(dryRun)->option_text(" ");
  command.footer(
      "The library is used without a further option when none of Versalia is known.\n"
      "Nothing is written unless the whole text could be read.\n\n"
      "Example:\n"
      "  folionet-cli import eng-web_usfm.zip --name \"World English Bible\"");
  command.callback([&asked, arguments] {
    asked.run = [arguments](const CommonOptions& common, ConsoleUi& ui) { return RunImport(common, *arguments, ui); };
  });
}

void AddList(CLI::App& app, Arguments& asked) {
  CLI::App& list = *app.add_subcommand("list", "Shows what can be chosen, or the settings");
  const auto subject = std::make_shared<std::string>();
  const auto isSubject = [](const std::string& what) {
    if (IsListSubject(what)) return std::string();
    return "translations, languages, books, charsets, codes or settings was expected: \"" + what + "\"";
  };
  list.add_option("WHAT", *subject,
                  "translations: file stem and name of each;\n"
                  "languages: the files of book titles;\n"
                  "books: number, title, code, as cboLang has them;\n"
                  "charsets: for --set Charset=...;\n"
                  "codes: languages for --set Lang=... and import;\n"
                  "settings: KEY=VALUE, stored or default")
      ->required()
      ->type_name("")
      ->check(isSubject, "");
  AddSite(list, asked.common);
  list.footer(
      "Example:\n"
      "  folionet-cli list translations");
  list.callback([&asked, subject] {
    asked.run = [subject](const CommonOptions& common, ConsoleUi& ui) { return RunList(common, *subject, ui); };
  });
}

void AddCheck(CLI::App& app, Arguments& asked) {
  CLI::App& check = *app.add_subcommand("check", "Reads a library and names every fault in it");
  const auto arguments = std::make_shared<CheckArguments>();
  check.add_option("--translation", arguments->translation, "Display name or file stem (default: all of them)")
      ->type_name("NAME|STEM");
  AddSettings(check, arguments->settings);
  AddSite(check, asked.common);
  AddJson(check, asked.common);
  check.footer(
      "Prints each fault with file and line, then their number; changes nothing.\n"
      "Exit status 1 when there are faults.\n\n"
      "Example:\n"
      "  folionet-cli check --translation KJV");
  check.callback([&asked, arguments] {
    asked.run = [arguments](const CommonOptions& common, ConsoleUi& ui) { return RunCheck(common, *arguments, ui); };
  });
}

void AddVerify(CLI::App& app, Arguments& asked) {
  CLI::App& verify = *app.add_subcommand("verify", "Reads a written site and names the broken links");
  const auto arguments = std::make_shared<VerifyArguments>();
  CLI::Option* const folder = verify.add_option("FOLDER", arguments->folder, "The folder of the site")->type_name("");
  verify
      .add_option("--index", arguments->indexName, "File name of the index page (default: index.html,\nelse index.htm)")
      ->type_name("NAME");
  CLI::Option* const stale =
      verify.add_flag("--stale", arguments->stale, "Only print the pages of ours that nothing\nleads to");
  verify.add_flag("--remove-stale", arguments->removeStale, "Delete those pages, and print their names")
      ->excludes(stale);
  AddSite(verify, asked.common);
  AddJson(verify, asked.common);
  verify.footer(
      "Also lists the pages that the index page does not lead to. Changes nothing but\n"
      "what --remove-stale deletes. Exit status 1 when a link is broken.\n\n"
      "Example:\n"
      "  folionet-cli verify ~/site");
  verify.callback([&asked, arguments, folder] {
    if (folder->empty() && asked.common.site.empty()) throw CLI::RequiredError("FOLDER or --settings");
    asked.run = [arguments](const CommonOptions& common, ConsoleUi& ui) { return RunVerify(common, *arguments, ui); };
  });
}

// Refuses an empty text wherever `app` or one of its commands takes a value: a script's variable that is not set would
// otherwise pass for an option that was not given.
void RefuseEmptyValues(CLI::App& app) {
  const auto refuse = [](const std::string& value) {
    return value.empty() ? std::string("a value was expected, but the text given is empty") : std::string();
  };
  for (CLI::Option* option : app.get_options()) {
    if (option->get_items_expected_max() > 0) option->check(refuse, "");
  }
  for (CLI::App* command : app.get_subcommands({})) RefuseEmptyValues(*command);
}

// "compile, import, list, check or verify was expected"
std::string ExpectedCommands(const CLI::App& app) {
  std::string names;
  const auto commands = app.get_subcommands([](const CLI::App*) { return true; });
  for (std::size_t i = 0; i < commands.size(); ++i) {
    if (i > 0) names += i + 1 == commands.size() ? " or " : ", ";
    names += commands[i]->get_name();
  }
  return names + " was expected.";
}

// What is said about arguments that cannot be parsed: what is wrong, and the --help of the command that was meant.
std::string UsageText(const CLI::App* app, const CLI::Error& error) {
  std::string text = error.what();
  std::string command = app->get_name();
  if (const auto chosen = app->get_subcommands(); !chosen.empty()) {
    command += " " + chosen.front()->get_name();
  } else if (const auto unknown = app->remaining(); error.get_name() == "RequiredError") {
    if (unknown.empty()) {
      text = "A command is missing: " + ExpectedCommands(*app);
    } else if (unknown.front().starts_with('-')) {
      text = "The following argument was not expected: " + unknown.front();
    } else {
      text = "There is no command \"" + unknown.front() + "\": " + ExpectedCommands(*app);
    }
  }
  return Escaped(text) + "\nSee \"" + command + " --help\".\n";
}

}  // namespace

Arguments ParseArguments(int argc, char** argv) {
  Arguments asked;
  for (int i = 1; i < argc; ++i) {
    if (!IsUtf8(argv[i])) {
      asked.errors = "Argument " + std::to_string(i) + " is not UTF-8 text: give it in UTF-8.\n";
      asked.status = kExitUsage;
      return asked;
    }
  }
  CLI::App app("Turns a Bible translation installed by Versalia into a static web site.", "folionet-cli");
  app.set_version_flag("--version", std::string("folionet-cli ") + kVersion);
  app.require_subcommand(1);
  app.fallthrough();
  AddCommonOptions(app, asked.common);
  AddCompile(app, asked);
  AddImport(app, asked);
  AddList(app, asked);
  AddCheck(app, asked);
  AddVerify(app, asked);
  RefuseEmptyValues(app);
  app.failure_message(UsageText);
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    std::ostringstream output;
    std::ostringstream errors;
    asked.status = app.exit(error, output, errors) == 0 ? kExitDone : kExitUsage;
    asked.output = output.str();
    asked.errors = errors.str();
  }
  return asked;
}

}  // namespace folionet
