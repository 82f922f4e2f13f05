#pragma once

#include <QLabel>

namespace folionet {

// A wrapped plain text that can be selected. It always keeps the height that its width needs, so that a window that is
// made narrower grows rather than cutting it off.
class HelpLabel : public QLabel {
  Q_OBJECT

 public:
  explicit HelpLabel(QWidget* parent = nullptr);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void FitWidth();
};

}  // namespace folionet
