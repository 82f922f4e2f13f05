#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QFile>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOption>
#include <QTest>
#include <QTextBrowser>
#include <QToolButton>
#include <QTreeWidget>
#include <QUrl>
#include <cstdlib>
#include <fstream>
#include <set>

#include "FactLines.h"
#include "FormTest.h"
#include "Script.h"
#include "Seen.h"
#include "TextBox.h"
#include "frmImport.h"
#include "frmMain.h"

namespace folionet {
namespace {

class Texts : public FormTest {
 protected:
  const bool isTranslated = std::getenv("FOLIONET_TEST_TRANSLATION") != nullptr;
};

// Buttons without a key of their own; that of sites bears the name of one.
const QStringList kKeyless{"cmdRestoreAll", "cmdBrowse", "cmdHelp", "cmdClose", "cmdSite"};

// What a person sees and reads, letter for letter; slips in it are meant. A line of the file is a control and its
// traits, with "=" before a text that is fixed and "~" before one that is translated.
TEST_F(Texts, AndControlsAreThoseOfTheFile) {
  ASSERT_TRUE(Start());
  for (QWidget* form : AllForms()) form->show();
  const SeenControls controls = ControlsOf(*m_form);
  std::ifstream file(FORM_CONTROLS);
  std::size_t at = 0;
  for (std::string line; std::getline(file, line) && at < controls.size(); ++at) {
    std::string seen = controls[at].first;
    for (std::string trait : controls[at].second) {
      test::Replace(trait, m_home.Path(), "@/");
      const std::string key = '\t' + trait.substr(0, trait.find('=')) + '~';
      const std::size_t kept = line.find(key);
      if (kept == std::string::npos) {
        seen += '\t' + trait;
      } else if (isTranslated) {
        seen += line.substr(kept, line.find('\t', kept + 1) - kept);
      } else {
        seen += key + trait.substr(key.size() - 1);
      }
    }
    EXPECT_EQ(seen, line) << "line " << at + 1;
  }
  EXPECT_EQ(at, controls.size());
}

// A control that takes the focus can be found by name, and no two keys of a form are the same. The main form has more
// controls than letters: those of one group share its title's, the tool tips of some buttons tell another key, the help
// tells those of two more, and the rare command that clears everything has none, nor has in some languages the one that
// opens the desktop's own window.
TEST_F(Texts, NameEveryControlAndGiveItsOwnKey) {
  ASSERT_TRUE(Start());
  QList<QWidget*> forms = AllForms();
  EXPECT_EQ(forms.size(), 12);
  forms[0] = m_form->centralWidget();
  for (const QWidget* form : forms) {
    SCOPED_TRACE(FromQt(form->objectName()));
    std::set<const QWidget*> named;
    std::set<QChar> keys;
    std::vector<QWidget*> tabbed;
    const bool isMain = form == forms.first();
    for (QWidget* control : form->findChildren<QWidget*>()) {
      if (!isMain && control->window() != form) continue;  // of a dialog's own dialog
      const QString caption = control->property("text").toString() + control->property("title").toString();
      const auto* label = qobject_cast<const QLabel*>(control);
      if (label != nullptr) named.insert(label->buddy());
      if (!control->accessibleName().isEmpty() || !caption.isEmpty()) named.insert(control);
      const qsizetype at = label == nullptr || label->buddy() != nullptr ? caption.indexOf('&') : -1;
      EXPECT_TRUE(at < 0 || keys.insert(caption[at + 1].toUpper()).second) << FromQt(caption);
      const bool mayHaveNone = kKeyless.contains(control->objectName());
      if (qobject_cast<const QPushButton*>(control) != nullptr && !mayHaveNone) {
        EXPECT_TRUE(at >= 0 || control->toolTip().endsWith(").")) << FromQt(caption);
      }
      const bool isOurs = !control->objectName().isEmpty() && !control->objectName().startsWith("qt_");
      if (isOurs && (control->focusPolicy() & Qt::TabFocus) != 0) tabbed.push_back(control);
    }
    std::set<QString> heard;
    for (QWidget* control : tabbed) {
      EXPECT_TRUE(named.contains(control)) << FromQt(control->objectName());
      const QString name = QAccessible::queryAccessibleInterface(control)->text(QAccessible::Name);
      EXPECT_TRUE(!name.isEmpty() && heard.insert(name).second)
          << FromQt(control->objectName() + " is heard as " + name);
    }
    EXPECT_GT(keys.size(), isMain ? 15U : 0U);
  }
}

// Where no font is installed at all every letter is a box, and no screen has room for them.
bool HasLetters() {
  const QFontMetrics metrics(QApplication::font());
  return metrics.horizontalAdvance('i') != metrics.horizontalAdvance('W');
}

// The room that a line has for its hint, between its frame and its buttons.
int HintRoom(const QLineEdit& box) {
  constexpr int kMargin = 2;  // Qt's own, on either side of the text
  QStyleOptionFrame frame;
  frame.initFrom(&box);
  frame.lineWidth = box.hasFrame() ? box.style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &frame, &box) : 0;
  int room = box.style()->subElementRect(QStyle::SE_LineEditContents, &frame, &box).width() - 2 * kMargin;
  for (const QToolButton* button : box.findChildren<QToolButton*>()) room -= button->width();
  return room;
}

int FieldRoom(const QComboBox& list) {
  QStyleOptionComboBox option;
  option.initFrom(&list);
  option.editable = list.isEditable();
  return list.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &list).width();
}

// What a control needs to show its text whole. Paths, and the texts of Bibles and books, may be longer than any box.
QSize NeededFor(const QWidget& control) {
  const QFontMetrics metrics = control.fontMetrics();
  if (const auto* box = qobject_cast<const QLineEdit*>(&control)) {
    const int beside = control.width() - HintRoom(*box);
    return box->placeholderText().isEmpty() ? QSize()
                                            : QSize(metrics.horizontalAdvance(box->placeholderText()) + beside, 0);
  }
  if (const auto* list = qobject_cast<const QComboBox*>(&control)) {
    return {metrics.horizontalAdvance(list->currentText()) + control.width() - FieldRoom(*list), 0};
  }
  if (const auto* box = qobject_cast<const QPlainTextEdit*>(&control)) {
    const QRect page = box->viewport()->rect();
    const int margin = static_cast<int>(box->document()->documentMargin());
    const bool isTyped = qobject_cast<const TextBox*>(box) != nullptr && !box->isReadOnly();
    if (isTyped) return {0, 3 * metrics.lineSpacing() + 2 * margin + box->height() - page.height()};
    const QRect hint =
        metrics.boundingRect(QRect(0, 0, page.width() - margin, 0), Qt::TextWordWrap, box->placeholderText());
    return box->placeholderText().isEmpty() ? QSize()
                                            : QSize(0, hint.height() + margin + box->height() - page.height());
  }
  const auto* label = qobject_cast<const QLabel*>(&control);
  if (label != nullptr && label->wordWrap()) return {0, label->heightForWidth(label->width())};
  const bool hasText = !(control.property("text").toString() + control.property("title").toString()).isEmpty();
  return hasText ? control.minimumSizeHint() : QSize();
}

// Parts of Qt's own, and panels, whose texts must not widen a window.
const QRegularExpression kNotOurs("^(qt_|StatusBar1_)");

class TextsIn : public InFont {};

// On a small screen with a large font no text is cut off, in any form, and nothing scrolls sideways.
TEST_P(TextsIn, HaveTheirRoom) {
  constexpr int kRoom = 1366;
  const auto use = [](int points) { QApplication::setFont(QFont(QString::fromLatin1(GetParam()), points)); };
  use(9);
  ASSERT_TRUE(Start());
  const QList<QWidget*> forms = AllForms();
  for (const int points : {9, 11, 13}) {  // the desktop's grows while the forms are open
    use(points);
    for (QWidget* form : forms) {
      SCOPED_TRACE(FromQt(form->objectName()) + " " + std::to_string(points));
      form->show();
      QApplication::processEvents();
      form->resize(1, 1);
      QApplication::processEvents();
      for (const QScrollArea* content : form->findChildren<QScrollArea*>()) {
        if (content->window() != form) continue;
        form->resize(form->width() + content->horizontalScrollBar()->maximum(), 1);
        QApplication::processEvents();
        EXPECT_EQ(content->horizontalScrollBar()->maximum(), 0) << FromQt(content->objectName());
      }
      EXPECT_LE(form->width(), kRoom);
      for (const QWidget* control : form->findChildren<QWidget*>()) {
        const bool isPart = control->window() == form && control->isVisible() && !control->objectName().isEmpty();
        if (!isPart || control->objectName().contains(kNotOurs)) continue;
        const QSize needed = NeededFor(*control);
        EXPECT_TRUE(needed.boundedTo(control->size()) == needed || !needed.isValid())
            << FromQt(control->objectName()) << " has " << control->width() << " x " << control->height() << " for "
            << needed.width() << " x " << needed.height();
      }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Fonts, TextsIn, testing::Values("DejaVu Sans", "Liberation Sans", "Noto Sans"),
                         InFont::NameOf);

TEST_F(Texts, AreHelpedInTheirLanguage) {
  const char* translation = std::getenv("FOLIONET_TEST_TRANSLATION");  // as folionet_de.qm
  const QString language =
      translation == nullptr ? "en" : QString::fromLocal8Bit(translation).section('_', -1).chopped(3);
  ASSERT_TRUE(Start());
  Click("cmdHelp");
  const QUrl place = m_form->findChild<QTextBrowser*>(QStringLiteral("helpPage"))->source();
  QFile page(':' + place.path());
  EXPECT_TRUE(page.open(QIODevice::ReadOnly)) << FromQt(page.fileName());
  const QString text = QString::fromUtf8(page.readAll());
  EXPECT_TRUE(text.contains("<html lang=\"" + language + '"')) << FromQt(page.fileName());
  const QStringList pictures = text.split(QStringLiteral("<img src=\"")).mid(1);
  EXPECT_GE(pictures.size(), 7);
  QApplication::processEvents();
  const auto& shown = *m_form->findChild<QTextBrowser*>();
  EXPECT_LE(shown.document()->size().width(), shown.viewport()->width()) << "nothing scrolls sideways";
  for (const QString& picture : pictures) {
    const QString file = ':' + place.resolved(QUrl(picture.section('"', 0, 0))).path();
    EXPECT_TRUE(QFile::exists(file)) << FromQt(file);
  }
}

// A screen of 1366 x 768 at 125 %, and one of 1920 x 1080 at 200 %, has room for every window.
TEST_F(Texts, OpenWithinTheScreen) {
  ASSERT_TRUE(Start());
  Click("cmdPageEncoding");
  constexpr QSize kSmallest(960, 540);
  constexpr QSize kAround(8, 60);  // of a frame and a title bar
  const QSize smallest = m_form->minimumSizeHint();
  EXPECT_TRUE(smallest.boundedTo(kSmallest - kAround) == smallest || !HasLetters())
      << smallest.width() << " x " << smallest.height();
  m_form->resize(smallest);
  QWidget& meta = Get("frmKeywords.");
  meta.show();
  EXPECT_LE(meta.height(), m_form->height()) << "no dialog is larger than the form at first";
  meta.resize(meta.sizeHint());
  m_form->resize(m_form->sizeHint());
  for (QDialog* dialog : m_form->findChildren<QDialog*>()) {
    dialog->show();
    QApplication::processEvents();
    const QSize least = dialog->minimumSizeHint();
    EXPECT_TRUE(least.boundedTo(kSmallest - kAround) == least || !HasLetters()) << FromQt(dialog->objectName());
    const auto* content = dialog->findChild<QScrollArea*>(QStringLiteral("scrContent"));
    if (content == nullptr) continue;
    const QWidget* first = dialog->nextInFocusChain();
    while ((first->focusPolicy() & Qt::TabFocus) == 0 || !first->isVisible()) first = first->nextInFocusChain();
    EXPECT_TRUE(content->isAncestorOf(first)) << FromQt(first->objectName()) << " comes before what it is about";
    const QSize wanted = dialog->sizeHint() + kAround;
    const bool hasRoom = wanted.boundedTo(dialog->screen()->availableSize()) == wanted;
    EXPECT_EQ(hasRoom ? content->verticalScrollBar()->maximum() : 0, 0) << FromQt(dialog->objectName());
  }
  auto& encoding = Get("frmEncoding.");
  encoding.resize(encoding.width(), 1);
  QApplication::processEvents();
  const auto& scrolled = *encoding.findChild<QScrollArea*>(QStringLiteral("scrContent"));
  const int bar = scrolled.verticalScrollBar()->isVisible() ? scrolled.verticalScrollBar()->width() : 0;
  EXPECT_GE(scrolled.width() - scrolled.viewport()->width() - bar, bar > 0 ? 6 : 0) << "the bar stands off the content";
  m_form->resize(m_form->sizeHint());
  for (const char* file : {"index.html", "Book1_1.html", "note.txt"}) m_home.Write(std::string("site/") + file, "");
  ChooseOutput();
  ASSERT_TRUE(QTest::qWaitFor([this] { return !m_form->Facts().IsLooking(); }));
  Give("cboStartBook", "Book2");
  ASSERT_TRUE(QTest::qWaitFor([this] { return !m_form->Facts().IsLooking(); }));
  QApplication::processEvents();
  EXPECT_EQ(HasLetters() ? Get<QScrollArea>("scrColumns").verticalScrollBar()->maximum() : 0, 0)
      << "lists make room for what is told";
  Get("txthttpRoot").setFocus();
  m_form->resize(kSmallest - kAround);
  QApplication::processEvents();
  const auto isSeen = [](const QWidget& part, const QRect& rect) {
    return part.visibleRegion().contains(rect.center());
  };
  EXPECT_TRUE(isSeen(Get("txthttpRoot"), Get("txthttpRoot").rect())) << "what is typed into";
  const auto& tree = Get<QTreeWidget>("Dir1");
  EXPECT_TRUE(tree.viewport()->rect().contains(tree.visualItemRect(tree.currentItem()).center()));
  for (const char* control : {"cmdCompile", "cmdHelp", "frmMain.StatusBar1"}) {
    const QWidget& widget = Get(control);
    EXPECT_LE(widget.mapTo(m_form.get(), widget.rect().bottomRight()).y(), m_form->height()) << control;
  }
}

TEST_F(Texts, OfAFailedImportAreInTheLanguageOfTheForm) {
  const std::string file = m_home.Write("bad", "\\id GEN\n\\c 999\n");
  ASSERT_TRUE(Start());
  Click("cmdImport");
  Give("frmImport.cmdFile", file);
  ASSERT_TRUE(QTest::qWaitFor([&] { return !Get<frmImport>("frmImport.").IsBusy(); }));
  const std::string shown = Shown("frmImport.txtFound");
  const bool isEnglish = shown.find("Nothing was written.") != std::string::npos;
  const std::string english =
      file + ", line 2\nGenesis: a chapter from 1 to 255 was expected: \"999\"\nNothing was written.";
  EXPECT_EQ(shown == english, isEnglish) << shown;
  EXPECT_EQ(shown.find("was expected") != std::string::npos, isEnglish) << shown;
  EXPECT_NE(shown.find("Genesis: "), std::string::npos) << shown;
}

}  // namespace
}  // namespace folionet
