#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPushButton>
#include <fstream>
#include <map>
#include <set>

#include "Escapes.h"
#include "FormTest.h"
#include "frmMain.h"

namespace folionet {
namespace {

class Texts : public FormTest {};

// Buttons without a key of their own.
const QStringList kKeyless{"cmdRestoreAll", "cmdBrowse", "cmdHelp", "cmdClose"};

// What a person reads, letter for letter; slips in it are meant. A line of the file is control, property and text, with
// "\n" for a line break, "\\" for a backslash and no "&" of mnemonics; "items" stands for the entries of a list.
TEST_F(Texts, AreThoseOfTheFile) {
  ASSERT_TRUE(Start());
  for (const char* button : {"cmdPageEncoding", "frmEncoding.cmdAddNew"}) Click(button);
  std::ifstream file(FORM_TEXTS);
  std::map<std::string, int> counts;
  for (std::string control, property, text; std::getline(file, control, '\t');) {
    std::getline(file, property, '\t');
    std::getline(file, text);
    const bool isList = property == "items";
    const QString shown = Get(control).property(property.c_str()).toString().remove('&');
    EXPECT_EQ(isList ? Items(control) : FromQt(shown), test::Unescaped(text)) << control;
    ++counts[control.substr(0, control.find('.') + 1)];
  }
  EXPECT_EQ(counts.size(), 11U) << "two main forms' kinds of names and nine dialogs";
  EXPECT_GT(counts[""], 40);
}

// A control that takes the focus can be found by name, and no two keys of a form are the same. The main form has more
// controls than letters: those of one group share its title's, the tool tips of some buttons tell another key, the help
// tells those of two more, and the rare command that clears everything has none, nor has in some languages the one that
// opens the desktop's own window.
TEST_F(Texts, NameEveryControlAndGiveItsOwnKey) {
  ASSERT_TRUE(Start());
  for (const char* button : {"cmdPageEncoding", "frmEncoding.cmdAddNew"}) Click(button);
  QList<QWidget*> forms{m_form->centralWidget()};
  for (QDialog* dialog : m_form->findChildren<QDialog*>()) forms << dialog;
  EXPECT_EQ(forms.size(), 10);
  for (const QWidget* form : forms) {
    SCOPED_TRACE(FromQt(form->objectName()));
    std::set<const QWidget*> named;
    std::set<QChar> keys;
    std::vector<const QWidget*> tabbed;
    const bool isMain = form == forms.first();
    for (const QWidget* control : form->findChildren<QWidget*>()) {
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
    for (const QWidget* control : tabbed) EXPECT_TRUE(named.contains(control)) << FromQt(control->objectName());
    EXPECT_GT(keys.size(), isMain ? 15U : 0U);
  }
}

// On a small screen with a large font, no text is cut off.
TEST_F(Texts, HaveTheirRoom) {
  constexpr QSize kRoom(1366, 768 - 60);  // a panel and a title bar take the rest
  for (const int points : {9, 11, 13}) {
    SCOPED_TRACE(points);
    QFont font = QApplication::font();
    font.setPointSize(points);
    ASSERT_TRUE(Start());
    m_form->setFont(font);
    const QSize least = m_form->minimumSizeHint();
    EXPECT_LE(least.width(), kRoom.width());
    EXPECT_LE(least.height(), kRoom.height());
    m_form->resize(least);
    m_form->layout()->activate();
    for (const QWidget* control : m_form->centralWidget()->findChildren<QWidget*>()) {
      const bool hasText = !control->property("text").toString().isEmpty() && control->isVisible();
      if (const auto* box = qobject_cast<const QLineEdit*>(control)) {
        EXPECT_GE(box->width(), box->fontMetrics().horizontalAdvance(box->placeholderText()))
            << FromQt(box->objectName());
        continue;
      }
      if (!hasText) continue;
      EXPECT_GE(control->width(), control->minimumSizeHint().width()) << FromQt(control->objectName());
      EXPECT_GE(control->height(), control->minimumSizeHint().height()) << FromQt(control->objectName());
    }
  }
}

}  // namespace
}  // namespace folionet
