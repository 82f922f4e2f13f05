#include "Usage.h"

#include <vector>

#include "ConsoleUi.h"

namespace folionet {
namespace {

std::string CommandError(const std::vector<std::string>& unknown, const std::string& otherwise) {
  constexpr char kCommands[] = "compile, list, check or verify was expected";
  if (unknown.empty()) return std::string("A command is missing: ") + kCommands + ".";
  if (unknown.front().starts_with('-')) return otherwise;
  return "There is no command \"" + unknown.front() + "\": " + kCommands + ".";
}

}  // namespace

std::string UsageText(const CLI::App* app, const CLI::Error& error) {
  std::string text = error.what();
  std::string command = "folionet-cli";
  if (const auto chosen = app->get_subcommands(); !chosen.empty()) {
    command += " " + chosen.front()->get_name();
  } else if (const auto unknown = app->remaining(); error.get_name() == "RequiredError") {
    text =
        CommandError(unknown, "The following argument was not expected: " + (unknown.empty() ? "" : unknown.front()));
  }
  return WithoutControls(text) + "\nSee \"" + command + " --help\".\n";
}

void RefuseEmptyValues(CLI::App& app) {
  const auto refuse = [](const std::string& value) {
    return value.empty() ? std::string("a value was expected, but the text given is empty") : std::string();
  };
  for (CLI::Option* option : app.get_options()) {
    if (option->get_items_expected_max() > 0) option->check(refuse, "");
  }
  for (CLI::App* command : app.get_subcommands({})) RefuseEmptyValues(*command);
}

}  // namespace folionet
