#pragma once

#include <QLineEdit>

namespace folionet {

// Shows a path. One that is longer than the box is shown without its middle while nobody is in the box; its text and
// what is copied from it are whole.
class PathBox : public QLineEdit {
 public:
  using QLineEdit::QLineEdit;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace folionet
