#include "SampleLink.h"

#include <QMouseEvent>

#include "PageFonts.h"
#include "QtText.h"

namespace folionet {

SampleLink::SampleLink(QWidget* parent) : QLabel(parent) {
  setTextFormat(Qt::PlainText);
  setCursor(Qt::PointingHandCursor);
}

void SampleLink::SetOptions(const EffectsOptions& options, const QFont& pageFont) {
  m_options = options;
  m_plain = pageFont;
  m_plain.setUnderline(true);
  m_rollover = options.chkRollover ? RolloverFont(options, pageFont) : m_plain;
  m_isFollowed = false;
  ShowLook();
}

// The rollover style is a rule of the page's and wins over the colours of its body tag.
Colour SampleLink::LinkColour() const {
  if (m_isUnderMouse && m_options.chkRollover) return m_options.lblRColor.colour;
  if (m_isPressed) return m_options.lblActive.colour;
  return m_isFollowed ? m_options.lblFollowed.colour : m_options.lblHyperlink.colour;
}

void SampleLink::ShowLook() {
  QPalette colours = palette();
  colours.setColor(QPalette::WindowText, ToQt(LinkColour()));
  setPalette(colours);
  setFont(m_isUnderMouse ? m_rollover : m_plain);
  updateGeometry();
}

QSize SampleLink::sizeHint() const {
  const auto size = [this](const QFont& font) { return QFontMetrics(font).size(Qt::TextSingleLine, text()); };
  const int slant = QFontMetrics(m_plain).averageCharWidth();
  return size(m_plain).expandedTo(size(m_rollover)) + QSize(slant, 0);
}

void SampleLink::enterEvent(QEnterEvent* event) {
  QLabel::enterEvent(event);
  m_isUnderMouse = true;
  ShowLook();
}

void SampleLink::leaveEvent(QEvent* event) {
  QLabel::leaveEvent(event);
  m_isUnderMouse = false;
  ShowLook();
}

void SampleLink::mousePressEvent(QMouseEvent* event) {
  m_isPressed = event->button() == Qt::LeftButton;
  ShowLook();
}

void SampleLink::mouseReleaseEvent(QMouseEvent* event) {
  m_isFollowed = m_isFollowed || (m_isPressed && rect().contains(event->position().toPoint()));
  m_isPressed = false;
  ShowLook();
}

}  // namespace folionet
