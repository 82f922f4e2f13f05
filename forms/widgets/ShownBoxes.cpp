#include "ShownBoxes.h"

#include <QLineEdit>

#include "TextBox.h"

namespace folionet {
namespace {

template <typename Box>
void Dress(const QWidget& form) {
  for (Box* box : form.findChildren<Box*>()) {
    if (!box->isReadOnly() && box->placeholderText().isEmpty()) continue;
    QPalette colours;  // with nothing of its own, so that the rest follows the form's
    QColor hint = form.palette().color(QPalette::Active, QPalette::Text);
    hint.setAlphaF(0.6F);  // not every desktop's palette has a colour for hints that can be read on its ground
    for (const auto group : {QPalette::Active, QPalette::Inactive}) {
      colours.setColor(group, QPalette::PlaceholderText, hint);
    }
    if (box->isReadOnly()) colours.setColor(QPalette::Base, form.palette().color(QPalette::Active, QPalette::Window));
    box->setPalette(colours);
  }
}

}  // namespace

void DressBoxes(QWidget& form) {
  Dress<QLineEdit>(form);
  Dress<TextBox>(form);
}

}  // namespace folionet
