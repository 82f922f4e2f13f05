#pragma once

#include <QLabel>
#include <QString>

#include "PageOptions.h"

namespace folionet {

// Shows a colour as its background, with the caption "Default" when the person has not picked it.
class SwatchLabel : public QLabel {
  Q_OBJECT

 public:
  explicit SwatchLabel(QWidget* parent = nullptr);
  void ShowSwatch(const Swatch& swatch);
};

// The contrast of a colour on a background, such as "8.59 : 1", with a word of advice when it is too low to read well.
QString ContrastAdvice(Colour colour, Colour background);

}  // namespace folionet
