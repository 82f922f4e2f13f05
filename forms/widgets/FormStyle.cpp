#include "FormStyle.h"

#include <QApplication>
#include <QPainter>
#include <QProxyStyle>
#include <QStyleOption>
#include <algorithm>

namespace folionet {
namespace {

constexpr char kStyledHere[] = "fusion";

QColor Between(const QColor& ground, const QColor& text, float part) {
  const auto mix = [part](float from, float to) { return from + (to - from) * part; };
  return QColor::fromRgbF(mix(ground.redF(), text.redF()), mix(ground.greenF(), text.greenF()),
                          mix(ground.blueF(), text.blueF()));
}

// The style makes each outline from the window's colour by darkening it, which on a dark window leaves none to see.
class OutlineStyle : public QProxyStyle {
 public:
  explicit OutlineStyle(QObject* owner) : QProxyStyle(QLatin1String(kStyledHere)) { setParent(owner); }

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
    const bool drawsOutline = option != nullptr && IsDark(option->palette);
    if (drawsOutline && (element == PE_IndicatorCheckBox || element == PE_IndicatorRadioButton)) {
      if (const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option)) {
        const QStyleOptionButton copy = WithOutline(*button, kMarkOutline);
        return QProxyStyle::drawPrimitive(element, &copy, painter, widget);
      }
    }
    if (drawsOutline && (element == PE_FrameLineEdit || element == PE_Frame)) {
      if (const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option)) {
        const QStyleOptionFrame copy = WithOutline(*frame, kFrameOutline);
        return QProxyStyle::drawPrimitive(element, &copy, painter, widget);
      }
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    if (drawsOutline && element == PE_FrameGroupBox) DrawGroupFrame(*option, *painter);
  }

  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override {
    const auto* bar = qstyleoption_cast<const QStyleOptionProgressBar*>(option);
    if (element == CE_ProgressBarGroove && bar != nullptr && IsDark(bar->palette)) {
      const QStyleOptionProgressBar copy = WithOutline(*bar, kFrameOutline);
      QProxyStyle::drawControl(element, &copy, painter, widget);
    } else {
      QProxyStyle::drawControl(element, option, painter, widget);
    }
  }

 private:
  // How far outlines are from the window's colour to the text's: of what is to be clicked, and of what only frames.
  static constexpr float kMarkOutline = 0.55F;
  static constexpr float kFrameOutline = 0.3F;
  static constexpr float kGroupOutline = 0.2F;

  static bool IsDark(const QPalette& palette) {
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
  }

  template <typename Option>
  static Option WithOutline(Option option, float part) {
    constexpr int kDarkening = 140;  // the style's, in percent
    const QPalette& palette = option.palette;
    const QColor outline = Between(palette.color(QPalette::Window), palette.color(QPalette::WindowText), part);
    option.palette.setColor(QPalette::Window, outline.lighter(kDarkening));
    return option;
  }

  // Over the style's own frame, which lies under the title.
  void DrawGroupFrame(const QStyleOption& option, QPainter& painter) const {
    constexpr int kGap = 3;
    constexpr qreal kRadius = 2;
    const int title = std::max(pixelMetric(PM_ExclusiveIndicatorHeight), option.fontMetrics.height()) + kGap;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const QPalette& palette = option.palette;
    painter.setPen(Between(palette.color(QPalette::Window), palette.color(QPalette::WindowText), kGroupOutline));
    painter.drawRoundedRect(QRectF(option.rect).adjusted(0.5, title + 0.5, -0.5, -0.5), kRadius, kRadius);
    painter.restore();
  }
};

}  // namespace

void DressApplication() {
  if (QApplication::style()->name() == QLatin1String(kStyledHere)) QApplication::setStyle(new OutlineStyle(qApp));
}

}  // namespace folionet
