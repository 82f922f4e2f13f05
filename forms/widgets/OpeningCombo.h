#pragma once

#include <QComboBox>

namespace folionet {

// A list whose items are made anew each time that it is opened.
class OpeningCombo : public QComboBox {
  Q_OBJECT

 public:
  using QComboBox::QComboBox;

  void showPopup() override {
    emit Opening();
    QComboBox::showPopup();
  }

 signals:
  void Opening();
};

}  // namespace folionet
