#pragma once

#include <QLabel>

#include "PageOptions.h"

namespace folionet {

// A link as the pages will show it: in the link colour, restyled while the mouse is over it, in the active colour while
// it is pressed, and in the followed colour once it was clicked.
class SampleLink : public QLabel {
  Q_OBJECT

 public:
  explicit SampleLink(QWidget* parent = nullptr);

  // Shows these options; the link has not been followed yet.
  void SetOptions(const EffectsOptions& options, const QFont& pageFont);

  // Room for the link under the mouse too, so that nothing moves when it gets there.
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void enterEvent(QEnterEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  Colour LinkColour() const;
  void ShowLook();

  EffectsOptions m_options;
  QFont m_plain;
  QFont m_rollover;
  bool m_isUnderMouse = false;
  bool m_isPressed = false;
  bool m_isFollowed = false;
};

}  // namespace folionet
