#include "ShownBoxes.h"

#include <QApplication>
#include <QComboBox>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>

#include "TextBox.h"

namespace folionet {
namespace {

// For a hint to be read as a whole.
void GiveRoom(QLineEdit& box) {
  constexpr int kMargin = 4;  // on either side, beside the frame
  const int frame = box.sizeHint().height() - box.fontMetrics().height() + 2 * kMargin;
  const int button = box.actions().isEmpty() ? 0 : box.sizeHint().height();
  const int text = box.fontMetrics().horizontalAdvance(box.placeholderText());
  if (text > 0) box.setMinimumWidth(text + frame + button);
}

void GiveRoom(TextBox& /*box*/) {}

// For the lines of a hint that is a whole paragraph.
void GiveRoom(QPlainTextEdit& box) {
  constexpr int kLines = 6;
  const int around = 2 * (box.frameWidth() + static_cast<int>(box.document()->documentMargin()));
  box.setMinimumHeight(kLines * box.fontMetrics().lineSpacing() + around);
}

// Qt keeps the least size of a list from before a change of the font.
void GiveRoom(QComboBox& list) {
  QEvent change(QEvent::StyleChange);
  QApplication::sendEvent(&list, &change);
}

template <typename Box>
void DressBox(Box& box, const QPalette& form) {
  QPalette colours;  // with nothing of its own, so that the rest follows the form's
  QColor hint = form.color(QPalette::Active, QPalette::Text);
  hint.setAlphaF(0.6F);  // not every desktop's palette has a colour for hints that can be read on its ground
  for (const auto group : {QPalette::Active, QPalette::Inactive}) {
    colours.setColor(group, QPalette::PlaceholderText, hint);
  }
  if (box.isReadOnly()) colours.setColor(QPalette::Base, form.color(QPalette::Active, QPalette::Window));
  box.setPalette(colours);
}

template <typename Box>
void Dress(const QWidget& form) {
  for (Box* box : form.findChildren<Box*>()) {
    if (!box->isReadOnly() && box->placeholderText().isEmpty()) continue;
    DressBox(*box, form.palette());
    GiveRoom(*box);
  }
}

// Texts of the other direction would stand at the far end of what they belong to.
template <typename Text>
void KeepToTheStart(const QWidget& form) {
  if (form.layoutDirection() != Qt::RightToLeft) return;
  for (Text* text : form.findChildren<Text*>()) {
    const Qt::Alignment alignment = text->alignment();
    if ((alignment & (Qt::AlignRight | Qt::AlignHCenter | Qt::AlignAbsolute)) != 0) continue;
    text->setAlignment((alignment & Qt::AlignVertical_Mask) | Qt::AlignRight | Qt::AlignAbsolute);
  }
}

// On a mirrored desktop the full stop of a hint would stand before its last line.
void KeepInOrder(QPlainTextEdit& box) {
  const QString hint = box.placeholderText();
  if (box.layoutDirection() != Qt::RightToLeft || hint.isEmpty() || hint.isRightToLeft()) return;
  const QChar mark(0x200E);  // left to right
  if (!hint.endsWith(mark)) box.setPlaceholderText(hint + mark);
}

}  // namespace

void DressBoxes(QWidget& form) {
  KeepToTheStart<QLabel>(form);
  KeepToTheStart<QLineEdit>(form);
  Dress<QLineEdit>(form);
  Dress<TextBox>(form);
  for (QPlainTextEdit* box : form.findChildren<QPlainTextEdit*>()) KeepInOrder(*box);
  for (QComboBox* list : form.findChildren<QComboBox*>()) GiveRoom(*list);
  // Of plain boxes those with a hint alone: the sample of the page's text has colours of its own.
  for (QPlainTextEdit* box : form.findChildren<QPlainTextEdit*>()) {
    if (box->placeholderText().isEmpty() || qobject_cast<TextBox*>(box) != nullptr) continue;
    DressBox(*box, form.palette());
    GiveRoom(*box);
  }
}

}  // namespace folionet
