#include "TextCombo.h"

#include <QStyleOptionComboBox>
#include <QStylePainter>

namespace folionet {

// The first item that is added is not selected where there is such a text; what is painted comes from paintEvent.
TextCombo::TextCombo(QWidget* parent) : QComboBox(parent) { setPlaceholderText(QStringLiteral(" ")); }

void TextCombo::SetText(const QString& text) {
  m_ownText = text;
  setCurrentIndex(findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive));
  setAccessibleDescription(currentIndex() < 0 ? text : QString());  // a list's value is one of its items
  update();
}

QString TextCombo::Text() const { return currentIndex() < 0 ? m_ownText : currentText(); }

void TextCombo::paintEvent(QPaintEvent* /*event*/) {
  QStylePainter painter(this);
  QStyleOptionComboBox option;
  initStyleOption(&option);
  option.currentText = Text();
  painter.drawComplexControl(QStyle::CC_ComboBox, option);
  painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

}  // namespace folionet
