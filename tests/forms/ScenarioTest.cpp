#include <fstream>
#include <map>
#include <regex>
#include <sstream>

#include "Escapes.h"
#include "FormTest.h"
#include "frmMain.h"

namespace folionet {
namespace {

// What a person does in the forms and sees there, a line each, in the files of scenarios/:
//
//   # The title of a scenario, which ends at a blank line
//   store chkCSS 1                    a setting, before a start
//   start                             or "start fails", when the program must end
//   click cmdEffects chkBack          one or more controls, named as in FormTest.h
//   give frmEffects.cmdActive 255     types, picks or chooses
//   answer yes                        to the question to come
//   shows =BodyLinkTag <body ...      a control's text; after "=", a text that the pages are made with
//   box Confirm Exit?: All ...        the next box: title or report, and text; "..." stands for what is left
//
// "HOME/" is the test's own folder, and "\r", "\n", "\t", "\\" and "\xE9" stand for what they say.
struct Line {
  std::string place;  // for messages: "effects.txt:12"
  std::string verb;
  std::string first;  // word after it
  std::string rest;   // after that word and one blank
  std::vector<std::string> words;
};

struct Scenario {
  std::string name;
  std::vector<Line> lines;
};

void PrintTo(const Scenario& scenario, std::ostream* stream) { *stream << scenario.name; }

Line Parsed(const std::string& text, const std::string& place) {
  const auto cut = [](std::string& rest) {
    const std::size_t blank = rest.find(' ');
    std::string word = rest.substr(0, blank);
    rest.erase(0, blank == std::string::npos ? blank : blank + 1);
    return word;
  };
  Line line{place, {}, {}, text, {}};
  line.verb = cut(line.rest);
  std::istringstream words(line.rest);
  for (std::string word; words >> word;) line.words.push_back(word);
  line.first = cut(line.rest);
  line.rest = test::Unescaped(line.rest);
  return line;
}

// Every scenario of the folder: a title after "# " and its lines up to a blank one.
std::vector<Scenario> ReadScenarios() {
  std::vector<Scenario> scenarios;
  for (const auto& entry : std::filesystem::directory_iterator(FORM_SCENARIOS)) {
    if (entry.path().extension() != ".txt") continue;  // such as an editor's copy
    std::ifstream file(entry.path());
    int number = 0;
    for (std::string text; std::getline(file, text);) {
      const std::string place = entry.path().filename().string() + ":" + std::to_string(++number);
      if (text.starts_with("# ")) {
        const std::string title = entry.path().stem().string() + text.substr(1);
        scenarios.push_back({std::regex_replace(title, std::regex("[^A-Za-z0-9]"), "_"), {}});
      } else if (!text.empty()) {
        scenarios.back().lines.push_back(Parsed(text, place));
      }
    }
  }
  return scenarios;
}

class Scenarios : public FormTest, public testing::WithParamInterface<Scenario> {
 protected:
  using Verb = std::function<void(Scenarios&, const Line&)>;
  template <typename Act>
  static Verb Each(Act act) {
    return [act](Scenarios& test, const Line& line) {
      for (const std::string& word : line.words) act(test, word);
    };
  }
  static const std::map<std::string, Verb>& Actions();
  static const std::map<std::string, Verb>& Checks();

  void Run(const Line& line) {
    const auto action = Actions().find(line.verb);
    const Verb& verb = action == Actions().end() ? Checks().at(line.verb) : action->second;
    Line filled = line;  // "HOME/" is the test's own folder
    filled.rest = std::regex_replace(line.rest, std::regex("HOME/"), m_home.Path());
    verb(*this, filled);
  }

  // No box comes that a scenario does not tell of.
  void ExpectNoMoreBoxes() {
    for (; m_seen < m_ui.log.size(); ++m_seen) ADD_FAILURE() << m_ui.Boxes()[m_seen];
    m_seen = 0;
  }

  void ExpectBox(const std::string& expected) {
    ASSERT_LT(m_seen, m_ui.log.size()) << "no box";
    const std::string box = m_ui.Boxes()[m_seen++];
    EXPECT_EQ(expected.ends_with("...") ? box.substr(0, expected.size() - 3) + "..." : box, expected) << box;
  }

  // A control, or a text that the pages are made with, as "=LinkAlignment".
  std::string Seen(const std::string& name) const {
    const PageTexts& texts = m_state->texts;
    const std::map<std::string, std::string> fields{
        {"=LinkAlignment", texts.LinkAlignment},
        {"=RolloverStyle", texts.RolloverStyle},
        {"=BodyLinkTag", texts.BodyLinkTag},
        {"=CustomHeader", texts.CustomHeader},
        {"=CustomFooter", texts.CustomFooter},
        {"=PageLanguage", texts.PageLanguage},
        {"=PageCharset", texts.PageCharset},
        {"=CodePage", std::string(m_state->codePage.Name())},
        {"=startBook", m_state->startBookText},
        {"=txtBibleSel", m_state->options.txtBibleSel},
        {"=chapters", std::to_string(m_state->glob.ChapterIndex.size() - 1)}};
    return name.starts_with("=") ? fields.at(name) : Shown(name);
  }

  std::size_t m_seen = 0;  // boxes
};

const std::map<std::string, Scenarios::Verb>& Scenarios::Actions() {
  using Test = Scenarios;
  static const std::map<std::string, Verb> actions{
      {"start",
       [](Test& t, const Line& l) {
         t.ExpectNoMoreBoxes();
         EXPECT_EQ(t.Start(), l.first.empty()) << "\"start fails\" is a start that must not go on";
       }},
      {"click", Each([](Test& t, const std::string& n) { t.Click(n); })},
      {"give", [](Test& t, const Line& l) { t.Give(l.first, l.rest); }},
      {"press", [](Test& t, const Line& l) { Key(t.Get(l.first), QEvent::KeyPress, Qt::Key_Return); }},
      {"release", Each([](Test& t, const std::string& n) { Key(t.Get(n), QEvent::KeyRelease, Qt::Key_A); })},
      {"show", [](Test& t, const Line& l) { t.Get(l.first).show(); }},
      {"close", [](Test& t, const Line& l) { t.Get(l.first).close(); }},
      {"answer", Each([](Test& t, const std::string& n) { t.m_ui.yesNo.push_back(n == "yes"); })},
      {"enter",
       [](Test& t, const Line& l) { t.m_ui.texts.push_back(l.first == "-" ? "" : t.m_home.Path() + l.first); }},
      {"breakchooser", [](Test& t, const Line&) { t.m_ui.isChooserBroken = true; }},
      {"store", [](Test& t, const Line& l) { t.Store(l.first, l.rest); }},
      {"write", [](Test& t, const Line& l) { t.m_home.Write(l.first, l.rest); }},
      {"remove", Each([](Test& t, const std::string& n) { t.Remove(n); })},
      {"output", [](Test& t, const Line&) { t.ChooseOutput(); }},
      {"compile",
       [](Test& t, const Line&) {
         t.ChooseOutput();
         t.Click("cmdCompile");
         t.ExpectBox("Compilation Complete Folionet: ...");
       }},
      {"toobig",  // a file larger than is read
       [](Test& t, const Line& l) {
         std::filesystem::resize_file(t.m_home.Write(l.first, "begins like this"), (std::size_t{64} << 20) + 1);
       }},
      {"startbook", [](Test& t, const Line& l) { t.m_state->startBookText = l.first; }},
  };
  return actions;
}

const std::map<std::string, Scenarios::Verb>& Scenarios::Checks() {
  using Test = Scenarios;
  static const std::map<std::string, Verb> checks{
      {"shows", [](Test& t, const Line& l) { EXPECT_EQ(t.Seen(l.first), l.rest); }},
      {"begins", [](Test& t, const Line& l) { EXPECT_TRUE(t.Seen(l.first).starts_with(l.rest)) << t.Seen(l.first); }},
      {"on", Each([](Test& t, const std::string& n) { EXPECT_TRUE(t.IsEnabled(n)) << n; })},
      {"off", Each([](Test& t, const std::string& n) { EXPECT_FALSE(t.IsEnabled(n)) << n; })},
      {"open", Each([](Test& t, const std::string& n) { EXPECT_TRUE(t.IsShown(n)) << n; })},
      {"hidden", Each([](Test& t, const std::string& n) { EXPECT_FALSE(t.IsShown(n)) << n; })},
      {"lists", [](Test& t, const Line& l) { EXPECT_EQ(t.Items(l.first), l.rest); }},
      {"stored", [](Test& t, const Line& l) { EXPECT_EQ(t.Stored(l.first), l.rest) << l.first; }},
      {"holds", [](Test& t, const Line& l) { EXPECT_EQ(t.m_home.Read(l.first), l.rest); }},
      {"has",
       [](Test& t, const Line& l) {
         const std::string bytes = t.m_home.Read(l.first);
         EXPECT_NE(bytes.find(l.rest), std::string::npos) << l.rest << "\nis missing in\n" << bytes;
       }},
      {"absent", [](Test& t, const Line& l) { EXPECT_FALSE(t.m_home.Has(l.first)); }},
      {"box", [](Test& t, const Line& l) { t.ExpectBox(l.rest.empty() ? l.first : l.first + " " + l.rest); }},
      {"boxes",
       [](Test& t, const Line& l) {
         t.m_seen += std::stoul(l.first);
         EXPECT_EQ(t.m_seen, t.m_ui.log.size());
       }},
      {"focus", [](Test& t, const Line& l) { EXPECT_EQ(t.m_form->focusWidget(), &t.Get(l.first)); }},
      {"warned", [](Test& t, const Line& l) { EXPECT_EQ(t.m_ui.icon == MessageIcon::kWarning, l.first == "yes"); }},
      {"ended", [](Test& t, const Line& l) { EXPECT_EQ(t.m_hasEnded, l.first != "not"); }},
  };
  return checks;
}

TEST_P(Scenarios, GoAsTold) {
  ASSERT_FALSE(GetParam().lines.empty());
  for (const Line& line : GetParam().lines) {
    SCOPED_TRACE(line.place + " " + line.verb + " " + line.first);
    Run(line);
  }
  ExpectNoMoreBoxes();
}

INSTANTIATE_TEST_SUITE_P(Form, Scenarios, testing::ValuesIn(ReadScenarios()),
                         [](const auto& row) { return row.param.name; });

}  // namespace
}  // namespace folionet
