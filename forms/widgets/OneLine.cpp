#include "OneLine.h"

#include <QLineEdit>
#include <QValidator>
#include <algorithm>

#include "QtText.h"
#include "Text.h"

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

QString InOneLine(const QString& text) { return ToQt(InOneLine(FromQt(text))); }

void KeepBoxesToOneLine(QWidget& form) {
  for (QLineEdit* box : form.findChildren<QLineEdit*>()) {
    if (!box->isReadOnly()) box->setValidator(new OneLineValidator(box));
  }
}

}  // namespace folionet
