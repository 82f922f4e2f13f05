#include "FormArguments.h"

#include <QCommandLineOption>
#include <QCommandLineParser>
#include <QString>
#include <QStringList>
#include <algorithm>
#include <array>
#include <cstdio>
#include <filesystem>
#include <string_view>
#include <system_error>
#include <utility>

#include "BuildInfo.h"
#include "ProgramFolder.h"
#include "QtText.h"
#include "Text.h"
#include "Utf8.h"

namespace folionet {
namespace {

constexpr char kHelp[] =
    "Turns a Bible translation installed by Versalia into a static web site.\n"
    "Usage: folionet [OPTIONS] [FILE]\n"
    "\n"
    "Options:\n"
    "  -h,--help                   Print this help message and exit\n"
    "  --version                   Display program version information and exit\n"
    "  --versalia-path FOLDER      Holds Sysdefs and Index (default: Versalia's own)\n"
    "  --module-path FOLDER        Holds Bible (default: Modules in a given Versalia\n"
    "                              folder, else Versalia's own)\n"
    "  --program-folder FOLDER     Holds default.css (default: the program's if\n"
    "                              writable, else ~/.local/share/Folionet)\n"
    "  --settings FILE             The site to open, as FILE does (default: none)\n"
    "\n"
    "The folders count for this run only. F1 in the form explains every control.\n"
    "\n"
    "Example:\n"
    "  folionet --versalia-path ~/library\n";

// The arguments, the program's name first, without those that every Qt program takes, with one or two hyphens: the
// application reads them itself.
QStringList WithoutThoseOfQt(int argc, char** argv) {
  constexpr std::array kWithValue{"style",           "stylesheet",  "platform",     "platformpluginpath",
                                  "platformtheme",   "plugin",      "display",      "geometry",
                                  "qwindowgeometry", "qwindowicon", "qwindowtitle", "session"};
  constexpr std::string_view kReverse = "reverse";
  QStringList own{QStringLiteral("folionet")};
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
    own.append(ToQt(argument));
  }
  return own;
}

// A folder as it is meant where the program is started: the form works in another one.
std::string Whole(const std::string& folder) {
  std::error_code failed;
  const std::filesystem::path whole = std::filesystem::absolute(folder, failed);
  return folder.empty() || failed ? folder : whole.string();
}

ExitStatus Refuse(const std::string& text) {
  std::fprintf(stderr, "%s\nSee \"folionet --help\".\n", Escaped(text).c_str());
  return kExitUsage;
}

// What the parser found that is no option with its value; empty when there is nothing.
std::string Unexpected(const QCommandLineParser& parser) {
  QStringList unexpected;
  for (const QString& name : parser.unknownOptionNames()) {
    unexpected.append((name.size() == 1 ? QStringLiteral("-") : QStringLiteral("--")) + name);
  }
  unexpected.append(parser.positionalArguments().mid(1));
  if (unexpected.isEmpty()) return {};
  const char* const which = unexpected.size() == 1 ? "argument was" : "arguments were";
  return std::string("The following ") + which + " not expected: " + FromQt(unexpected.join(QLatin1Char(' ')));
}

}  // namespace

std::variant<FormArguments, ExitStatus> ParseFormArguments(int argc, char** argv) {
  for (int i = 1; i < argc; ++i) {
    if (IsUtf8(argv[i])) continue;
    std::fprintf(stderr, "Argument %d is not UTF-8 text: give it in UTF-8.\n", i);
    return kExitUsage;
  }
  const QCommandLineOption help(QStringList{QStringLiteral("h"), QStringLiteral("help")});
  const QCommandLineOption version(QStringLiteral("version"));
  QCommandLineParser parser;
  parser.addOptions({help, version});
  FormArguments arguments;
  const std::array<std::pair<const char*, std::string*>, 4> texts{{
      {"versalia-path", &arguments.folders.versaliaPath},
      {"module-path", &arguments.folders.modulePath},
      {"program-folder", &arguments.programFolder},
      {"settings", &arguments.site},
  }};
  for (const auto& [name, text] : texts) {
    parser.addOption({QLatin1String(name), QString(), QStringLiteral("FOLDER")});
  }
  const bool isParsed = parser.parse(WithoutThoseOfQt(argc, argv));
  if (parser.isSet(help) || parser.isSet(version)) {
    std::fputs(parser.isSet(help) ? kHelp : (std::string("folionet ") + kVersion + "\n").c_str(), stdout);
    return kExitDone;
  }
  if (const std::string unexpected = Unexpected(parser); !unexpected.empty()) return Refuse(unexpected);
  if (!isParsed) return Refuse(FromQt(parser.errorText()));
  for (const auto& [name, text] : texts) {
    QStringList given = parser.values(QLatin1String(name));
    if (text == &arguments.site) given.append(parser.positionalArguments());
    const std::string option = std::string("--") + name + ": ";
    if (given.size() > 1)
      return Refuse(option + "one was expected, but " + std::to_string(given.size()) + " were given");
    if (given.isEmpty()) continue;
    *text = FromQt(given.first());
    if (text->empty()) return Refuse(option + "a value was expected, but the text given is empty");
  }
  for (const auto& [name, text] : texts) {
    const std::string missing = text == &arguments.site ? std::string() : MissingFolder(*text);
    if (!missing.empty()) return Refuse(std::string("--") + name + ": " + missing);
  }
  for (const auto& [name, text] : texts) *text = Whole(*text);
  return arguments;
}

}  // namespace folionet
