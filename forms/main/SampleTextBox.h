#pragma once

#include <QPlainTextEdit>
#include <string>

#include "PageOptions.h"

namespace folionet {

// The four lines that describe a style, joined by CR LF. Sizes are those of HTML: points minus 9.
std::string MakeSampleText(const SampleText& sample);

// Shows the style of the pages' text in itself: font, size, bold, italic and both colours.
class SampleTextBox : public QPlainTextEdit {
  Q_OBJECT

 public:
  explicit SampleTextBox(QWidget* parent = nullptr);

  void ShowSample(const SampleText& sample);

  QSize sizeHint() const override;  // of the four lines
  QSize minimumSizeHint() const override;

 private:
  int AroundText() const;  // dots of height beside the lines
};

}  // namespace folionet
