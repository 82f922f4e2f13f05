#include "OneLine.h"

#include <QLineEdit>
#include <QValidator>
#include <algorithm>

namespace folionet {
namespace {

// The break of CR LF is one.
class OneLineValidator : public QValidator {
 public:
  using QValidator::QValidator;

  State validate(QString& text, int& position) const override {
    text = InOneLine(text);
    position = std::min(position, static_cast<int>(text.size()));
    return Acceptable;
  }
};

}  // namespace

QString InOneLine(QString text) {
  text.replace(QLatin1String("\r\n"), QLatin1String(" "));
  for (QChar& c : text) {
    const bool breaksLine = c == QChar::LineSeparator || c == QChar::ParagraphSeparator;
    if (breaksLine || c.category() == QChar::Other_Control) c = QLatin1Char(' ');
  }
  return text;
}

void KeepBoxesToOneLine(QWidget& form) {
  for (QLineEdit* box : form.findChildren<QLineEdit*>()) {
    if (!box->isReadOnly()) box->setValidator(new OneLineValidator(box));
  }
}

}  // namespace folionet
