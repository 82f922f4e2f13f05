#include <QApplication>
#include <QComboBox>
#include <QLayout>
#include <QLineEdit>
#include <fstream>
#include <map>

#include "FormTest.h"
#include "frmMain.h"

namespace folionet {
namespace {

class Texts : public FormTest {};

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
    EXPECT_EQ(isList ? Items(control) : FromQt(shown), Unescaped(text)) << control;
    ++counts[control.substr(0, control.find('.') + 1)];
  }
  EXPECT_EQ(counts.size(), 11U) << "two main forms' kinds of names and nine dialogs";
  EXPECT_GT(counts[""], 40);
}

// A control that takes the focus can be found by name, and no two mnemonics of a form are the same.
TEST_F(Texts, NameEveryControlAndGiveItsOwnKey) {
  ASSERT_TRUE(Start());
  std::map<char, std::string> mnemonics;
  for (const QWidget* control : m_form->centralWidget()->findChildren<QWidget*>()) {
    const std::string caption = FromQt(control->property("text").toString() + control->property("title").toString());
    if (const std::size_t at = caption.find('&'); at != std::string::npos) {
      const char key = static_cast<char>(std::toupper(caption.at(at + 1)));
      EXPECT_TRUE(mnemonics.emplace(key, caption).second) << caption << " and " << mnemonics[key];
    }
    const bool isOurs = !control->objectName().startsWith(QLatin1String("qt_")) && !control->objectName().isEmpty();
    if (isOurs && control->focusPolicy() != Qt::NoFocus) {
      EXPECT_FALSE((FromQt(control->accessibleName()) + caption).empty()) << FromQt(control->objectName());
    }
  }
  EXPECT_GT(mnemonics.size(), 15U);
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
      if (!hasText || qobject_cast<const QLineEdit*>(control) != nullptr) continue;
      EXPECT_GE(control->width(), control->minimumSizeHint().width()) << FromQt(control->objectName());
      EXPECT_GE(control->height(), control->minimumSizeHint().height()) << FromQt(control->objectName());
    }
  }
}

}  // namespace
}  // namespace folionet
