#include "FormRunsTest.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QDropEvent>
#include <QKeySequence>
#include <QMimeData>
#include <QTest>
#include <QTextBrowser>
#include <QTextCursor>
#include <QTextDocumentFragment>
#include <QUrl>
#include <csignal>
#include <functional>
#include <map>
#include <utility>

#include "Case.h"
#include "Escapes.h"
#include "FactLines.h"
#include "FolderContent.h"
#include "FormTest.h"
#include "Script.h"
#include "Seen.h"
#include "frmImport.h"
#include "frmMain.h"

namespace folionet {
namespace {

using Lines = std::vector<std::string>;

// A line "VERB NAME TEXT" or "VERB NAME NAME..." of a case.
struct Line {
  std::string verb;
  std::string name;
  std::string text;  // all behind the name and one blank, without its escapes
  Lines names;
};

Line Parsed(const std::string& whole) {
  std::string rest = whole;
  const auto cut = [&rest] {
    const std::size_t blank = rest.find(' ');
    std::string word = rest.substr(0, blank);
    rest.erase(0, blank == std::string::npos ? blank : blank + 1);
    return word;
  };
  Line line;
  line.verb = cut();
  line.names = test::SplitWords(rest);
  line.name = cut();
  line.text = test::Unescaped(rest);
  return line;
}

// Counts how often a window is put before the others.
class Raises : public QObject {
 public:
  int count = 0;
  bool eventFilter(QObject* /*window*/, QEvent* event) override {
    if (event->type() == QEvent::ZOrderChange) ++count;
    return false;
  }
};

// The words of tests/runs/README.md that drive the forms or look at them.
class FormRuns : public FormTest {
 public:
  explicit FormRuns(test::ScriptCase script) : m_script(std::move(script)) {
    m_ui.onPanel = [this](int panel, std::string_view text) {
      if (panel == 1) m_panels += std::string(text) + "\n";
      m_form->ShowPanel(panel, text);
    };
  }
  void TestBody() override {
    test::RunScript(m_script, [this](const std::string& line) { return Do(line); });
  }

 private:
  using Act = std::function<void(FormRuns&, const Line&)>;
  using Look = std::function<std::string(FormRuns&, const std::string& name)>;
  static const std::map<std::string, Act>& Actions();
  static const std::map<std::string, Look>& Looks();
  static const std::map<std::string, Look>& States();
  template <typename ActOn>
  static Act Each(ActOn act) {
    return [act](FormRuns& test, const Line& line) {
      for (const std::string& name : line.names) act(test, name);
    };
  }

  // The line as it should stand, and the boxes that came.
  Lines Do(const std::string& whole) {
    Line line = Parsed(whole);
    test::Replace(line.text, "@/", m_home.Path());
    Lines lines{whole};
    const auto action = Actions().find(line.verb);
    const auto look = Looks().find(line.verb);
    const auto state = States().find(line.verb);
    if (action != Actions().end()) {
      action->second(*this, line);
    } else if (look != Looks().end()) {
      const std::string found = look->second(*this, line.name);
      if (!test::Holds(line.text, found)) lines = {line.verb + " " + line.name + " " + Told(found)};
    } else if (state != States().end()) {
      lines = {line.verb};
      for (const std::string& name : line.names) lines[0] += " " + state->second(*this, name);
    } else if (line.verb == "panels") {
      const Lines texts = test::MarkLines("| ", std::exchange(m_panels, {}));
      lines.insert(lines.end(), texts.begin(), texts.end());
    } else if (line.verb == "changed") {
      const SeenControls now = ControlsOf(*m_form);
      for (const std::string& change : ChangesOf(m_controls, now)) lines.push_back("| " + m_case.Named(change));
      m_controls = now;
    } else {
      lines = m_case.Do(whole);
    }
    for (; m_seen < m_ui.log.size(); ++m_seen) lines.push_back("> " + Told(m_ui.Boxes()[m_seen]));
    return lines;
  }

  // These boxes come of it, and where they ask, the answer is yes.
  void ClickFor(const std::string& name, const Lines& boxes) {
    if (boxes[0].ends_with("?")) m_ui.yesNo.push_back(true);
    Click(name);
    EXPECT_EQ(Lines(m_ui.log.begin() + static_cast<std::ptrdiff_t>(m_seen), m_ui.log.end()), boxes);
    m_seen = m_ui.log.size();
  }

  void Press(QWidget& control, const std::string& name) const {
    QApplication::setActiveWindow(control.window());
    control.setFocus();
    const QKeyCombination key = QKeySequence(ToQt(name))[0];
    QTest::keyClick(&control, key.key(), key.keyboardModifiers());
  }

  void Drop(const Line& line, bool isTaken) const {
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(ToQt(line.text))});
    QDragEnterEvent enter(QPoint(1, 1), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QDropEvent drop(QPointF(1, 1), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    for (QEvent* event : {static_cast<QEvent*>(&enter), static_cast<QEvent*>(&drop)}) {
      QApplication::sendEvent(&Get(line.name), event);
      EXPECT_EQ(event->isAccepted(), isTaken) << line.text;
    }
    QCoreApplication::processEvents();  // the dialog of a dropped text opens behind the drop
  }

  // Where F1 opens the help, when there is such a place and the keys go on from it.
  std::string Topic(const std::string& control) const {
    QWidget& window = *Get(control).window();
    window.show();
    Press(Get(control), "F1");
    auto* help = window.findChild<QDialog*>(QStringLiteral("HelpWindow"), Qt::FindDirectChildrenOnly);
    if (help == nullptr || !help->isVisible()) return "no help";
    Raises raises;
    help->installEventFilter(&raises);
    Press(Get(control), "F1");
    if (raises.count == 0) return "the help behind other windows";
    auto* page = help->findChild<QTextBrowser*>();
    const QString topic = page->source().fragment();
    QTextCursor place = page->textCursor();
    place.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
    const bool isThere = place.selection().toHtml().contains("<a name=\"" + topic + '"');
    const bool hasKeys = help->focusWidget() == page;
    QTest::keyClick(page, Qt::Key_Tab);
    const bool goesOn = hasKeys && page->textCursor().selectionStart() >= place.selectionStart();
    help->hide();
    return isThere && goesOn ? FromQt(topic) : FromQt(topic) + ", and the keys go on from another place";
  }

  std::string Told(const std::string& text) const { return test::Visible(m_case.Named(text)); }

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
        {"=page", PageShown()},
        {"=clipboard", FromQt(QApplication::clipboard()->text())},
        {"=startBook", m_state->startBookText},
        {"=nextSite", m_site},
        {"=txtBibleSel", m_state->options.txtBibleSel},
        {"=chapters", std::to_string(m_state->glob.ChapterIndex.size() - 1)}};
    return name.starts_with("=") ? fields.at(name) : Shown(name);
  }

  // The name of the page in the browser, and its verses.
  std::string PageShown() const {
    const std::string page = m_ui.pageShown.empty() ? "" : test::ReadFile(m_ui.pageShown);
    const std::size_t verses = page.find(" 1:1 ");
    return m_ui.pageShown.substr(m_ui.pageShown.rfind('/') + 1) + ": " +
           (verses == std::string::npos ? "" : page.substr(verses, page.find("</bl", verses) - verses));
  }

  test::ScriptCase m_script;
  test::Case m_case{m_home};
  std::size_t m_seen = 0;   // boxes
  SeenControls m_controls;  // at the first start, or when they were last looked at
  std::string m_panels;     // what the status bar has told of runs, a line each
};

const std::map<std::string, FormRuns::Act>& FormRuns::Actions() {
  using Test = FormRuns;
  static const std::map<std::string, Act> actions{
      {"start",
       [](Test& t, const Line& l) {
         t.m_seen = 0;
         EXPECT_EQ(t.Start(), l.name.empty()) << "\"start fails\" is a start that must not go on";
         if (t.m_controls.empty()) t.m_controls = ControlsOf(*t.m_form);
       }},
      {"click", Each([](Test& t, const std::string& n) { t.Click(n); })},
      {"compiles", [](Test& t, const Line&) { t.ClickFor("cmdCompile", {"Compilation Complete Folionet"}); }},
      {"exits", [](Test& t, const Line&) { t.ClickFor("cmdClose", {"Confirm Exit?"}); }},
      {"restores",
       [](Test& t, const Line&) {
         t.ClickFor("cmdRestoreAll", {"Restore Factory Settings?", "Restart Folionet"});
       }},
      {"adds",  // a language
       [](Test& t, const Line& l) {
         t.Give("frmAddnew.txtLangAbbr", l.name);
         t.Give("frmAddnew.txtLangLang", l.text);
         t.ClickFor("frmAddnew.cmdUpdLang", {"Record Added"});
       }},
      {"give", [](Test& t, const Line& l) { t.Give(l.name, l.text); }},
      {"press", [](Test& t, const Line& l) { Key(t.Get(l.name), QEvent::KeyPress, Qt::Key_Return); }},
      {"keys",  // one after the other, in what has the focus
       Each([](Test& t, const std::string& n) {
         QWidget* focus = t.m_form->focusWidget();
         t.Press(focus != nullptr ? *focus : *t.m_form, n);
       })},
      {"release", Each([](Test& t, const std::string& n) { Key(t.Get(n), QEvent::KeyRelease, Qt::Key_A); })},
      {"bring", [](Test& t, const Line& l) { t.Get(l.name).show(); }},
      {"close", [](Test& t, const Line& l) { t.Get(l.name).close(); }},
      {"answer", Each([](Test& t, const std::string& n) { t.m_ui.yesNo.push_back(n == "yes"); })},
      {"enter", [](Test& t, const Line& l) { t.m_ui.texts.push_back(l.name == "-" ? "" : t.m_home.Path() + l.name); }},
      {"breakchooser", [](Test& t, const Line&) { t.m_ui.isChooserBroken = true; }},
      {"site", [](Test& t, const Line& l) { t.m_site = l.name.empty() ? "" : t.m_home.Path() + l.name; }},
      {"store", [](Test& t, const Line& l) { t.Store(l.name, l.text); }},
      {"output", [](Test& t, const Line&) { t.ChooseOutput(); }},
      {"drop",  // a file or a folder on a window
       [](Test& t, const Line& l) { t.Drop(l, true); }},
      {"refuse",  // what is dropped
       [](Test& t, const Line& l) { t.Drop(l, false); }},
      {"scanned",  // the chosen folder
       [](Test& t, const Line&) { EXPECT_TRUE(QTest::qWaitFor([&] { return !t.m_form->Facts().IsLooking(); })); }},
      {"settled",  // what the import does beside the form
       [](Test& t, const Line&) {
         const auto& dialog = t.Get<frmImport>("frmImport.");
         EXPECT_TRUE(QTest::qWaitFor([&] { return !dialog.IsBusy(); }));
       }},
      {"trigger", [](Test& t, const Line& l) { t.m_form->findChild<QAction*>(ToQt(l.name))->trigger(); }},
      {"stopat",  // the step of a run, as panel 1 tells it
       [](Test& t, const Line& l) {
         t.m_ui.onPanel = [step = l.text.empty() ? l.name : l.name + " " + l.text](int panel, std::string_view text) {
           if (panel == 1 && text == step) std::raise(SIGTERM);
         };
       }},
      {"startbook", [](Test& t, const Line& l) { t.m_state->startBookText = l.name; }},
  };
  return actions;
}

// "shows NAME TEXT": what is seen is the text.
const std::map<std::string, FormRuns::Look>& FormRuns::Looks() {
  using Test = FormRuns;
  static const std::map<std::string, Look> looks{
      {"shows", [](Test& t, const std::string& n) { return t.Seen(n); }},
      {"topic", [](Test& t, const std::string& n) { return t.Topic(n); }},  // of the help, by F1
      {"lists", [](Test& t, const std::string& n) { return t.Items(n); }},
      {"stored", [](Test& t, const std::string& n) { return t.Stored(n); }},
  };
  return looks;
}

// "on NAME...": a name that is not so is given with a "!" before it.
const std::map<std::string, FormRuns::Look>& FormRuns::States() {
  using Test = FormRuns;
  const auto is = [](auto holds) {
    return [holds](Test& t, const std::string& n) { return (holds(t, n) ? "" : "!") + n; };
  };
  static const std::map<std::string, Look> states{
      {"on", is([](Test& t, const std::string& n) { return t.IsEnabled(n); })},
      {"off", is([](Test& t, const std::string& n) { return !t.IsEnabled(n); })},
      {"open", is([](Test& t, const std::string& n) { return t.IsShown(n); })},
      {"hidden", is([](Test& t, const std::string& n) { return !t.IsShown(n); })},
      {"focus", is([](Test& t, const std::string& n) { return t.Get(n).window()->focusWidget() == &t.Get(n); })},
      {"warned",
       is([](Test& t, const std::string& n) { return (t.m_ui.icon == MessageIcon::kWarning) == (n == "yes"); })},
      {"ended", is([](Test& t, const std::string& n) { return t.m_hasEnded == (n == "yes"); })},
  };
  return states;
}

}  // namespace

void RegisterFormRuns() { test::RegisterScripts<FormRuns>(test::Drives::kForms); }

}  // namespace folionet
