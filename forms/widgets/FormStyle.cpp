#include "FormStyle.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QApplication>
#include <QFrame>
#include <QPainter>
#include <QProxyStyle>
#include <QRegion>
#include <QStyleOption>
#include <algorithm>

#include "Contrast.h"
#include "QtText.h"

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
    // Marks are to be clicked: on a light window too the style's outline is hard to see.
    if (element == PE_IndicatorCheckBox || element == PE_IndicatorRadioButton) {
      if (const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option)) {
        const bool isEnabled = (button->state & State_Enabled) != 0;
        const QStyleOptionButton copy = WithOutline(*button, isEnabled ? kMarkOutline : kFrameOutline);
        return QProxyStyle::drawPrimitive(element, &copy, painter, widget);
      }
    }
    const bool isPart = widget != nullptr && !widget->isWindow();
    if (element == PE_Frame && option != nullptr && isPart && qobject_cast<const QFrame*>(widget) != nullptr) {
      DrawFrame(*option, *painter);
      if (qobject_cast<const QAbstractScrollArea*>(widget) != nullptr) FillFrame(*option, *painter);
      return;
    }
    if (drawsOutline && (element == PE_FrameLineEdit || element == PE_Frame)) {
      if (const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option)) {
        const QStyleOptionFrame copy = WithOutline(*frame, kFrameOutline);
        return QProxyStyle::drawPrimitive(element, &copy, painter, widget);
      }
    }
    const bool isFocus = option != nullptr && (option->state & State_HasFocus) != 0;
    if (isFocus && element == PE_FrameFocusRect && qobject_cast<const QAbstractButton*>(widget) != nullptr) {
      return DrawRing(option->rect, RingColour(option->palette), 1, *painter);
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    if (drawsOutline && element == PE_FrameGroupBox) DrawGroupFrame(*option, *painter);
    // A list's own line has its focus by the list, which draws it.
    if (isFocus && element == PE_PanelLineEdit && widget != nullptr && widget->focusProxy() == nullptr) {
      DrawRing(option->rect, RingColour(option->palette), kRingWidth, *painter);
    }
  }

  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                          const QWidget* widget) const override {
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    const bool isFocus = option != nullptr && (option->state & State_HasFocus) != 0;
    if (!isFocus || (control != CC_ComboBox && control != CC_ToolButton && control != CC_SpinBox)) return;
    DrawRing(option->rect, RingColour(option->palette), kRingWidth, *painter);
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
    if (option != nullptr && (option->state & State_HasFocus) != 0) DrawFocus(element, *option, *painter, widget);
  }

  // A text keeps the order of its own script on a mirrored desktop: a full stop stays behind its sentence.
  // NOLINTNEXTLINE(readability-function-size): the parameters are Qt's
  void drawItemText(QPainter* painter, const QRect& rect, int flags, const QPalette& palette, bool isEnabled,
                    const QString& text, QPalette::ColorRole role) const override {
    constexpr int kForced = Qt::TextForceLeftToRight | Qt::TextForceRightToLeft;
    const bool isMirrored = (flags & kForced) != 0 ? (flags & Qt::TextForceRightToLeft) != 0
                                                   : painter->layoutDirection() == Qt::RightToLeft;
    constexpr int kPlaces = Qt::AlignHorizontal_Mask;
    const Qt::Alignment place =
        visualAlignment(isMirrored ? Qt::RightToLeft : Qt::LeftToRight, Qt::Alignment(flags & kPlaces));
    const int order = text.isRightToLeft() ? Qt::TextForceRightToLeft : Qt::TextForceLeftToRight;
    const int kept = flags & ~(kForced | kPlaces);
    QProxyStyle::drawItemText(painter, rect, kept | static_cast<int>(place) | order, palette, isEnabled, text, role);
  }

  // The style leaves a caption next to no room beside it.
  QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                         const QWidget* widget) const override {
    constexpr int kBeside = 4;
    const QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
    return type == CT_PushButton ? size + QSize(2 * kBeside, 0) : size;
  }

  // A ring for the focus is not half under what scrolls.
  int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override {
    const bool isOfScrolled =
        metric == PM_DefaultFrameWidth && qobject_cast<const QAbstractScrollArea*>(widget) != nullptr;
    return isOfScrolled ? static_cast<int>(kRingWidth) : QProxyStyle::pixelMetric(metric, option, widget);
  }

  // The buttons of boxes look like those of the forms, which have none.
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* more) const override {
    return hint == SH_DialogButtonBox_ButtonsHaveIcons ? 0 : QProxyStyle::styleHint(hint, option, widget, more);
  }

 private:
  // The highlight, so near to the text's colour that the frame which it takes the place of is another one.
  static QColor RingColour(const QPalette& palette) {
    constexpr double kEnough = 3.2;
    const QColor window = palette.color(QPalette::Window);
    const QColor text = palette.color(QPalette::WindowText);
    const QColor frame = IsDark(palette) ? Between(window, text, kFrameOutline) : window.darker(kDarkening);
    QColor ring = palette.color(QPalette::Highlight);
    for (const float part : {0.2F, 0.35F, 0.5F, 0.65F, 0.8F, 1.0F}) {
      ring = Between(palette.color(QPalette::Highlight), text, part);
      if (ContrastRatio(FromQt(ring), FromQt(frame)) >= kEnough) break;
    }
    return ring;
  }

  // The style draws no focus around what scrolls, and shows a button that has it as one that Return would press.
  static void DrawFocus(ControlElement element, const QStyleOption& option, QPainter& painter, const QWidget* widget) {
    constexpr int kInside = 3;
    const QPalette& palette = option.palette;
    const bool isButton = element == CE_PushButton;
    const bool isFrame = element == CE_ShapedFrame && qobject_cast<const QAbstractScrollArea*>(widget) != nullptr;
    if (!isButton && !isFrame) return;
    if (isFrame) return DrawRing(option.rect, RingColour(palette), kRingWidth, painter);
    const QRect within = option.rect.adjusted(kInside, kInside, -kInside, -kInside);
    DrawRing(within, palette.color(QPalette::ButtonText), 1, painter);
  }

  static constexpr qreal kRingWidth = 2;

  static void DrawRing(const QRect& around, const QColor& colour, qreal width, QPainter& painter) {
    const qreal inside = width / 2;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colour, width));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(around).adjusted(inside, inside, -inside, -inside), 2, 2);
    painter.restore();
  }

  // How far outlines are from the window's colour to the text's: of what is to be clicked, and of what only frames.
  static constexpr float kMarkOutline = 0.55F;
  static constexpr float kFrameOutline = 0.3F;
  static constexpr float kGroupOutline = 0.2F;

  static constexpr int kDarkening = 140;  // the style's, in percent

  static bool IsDark(const QPalette& palette) {
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
  }

  template <typename Option>
  static Option WithOutline(Option option, float part) {
    const QPalette& palette = option.palette;
    const QColor outline = Between(palette.color(QPalette::Window), palette.color(QPalette::WindowText), part);
    option.palette.setColor(QPalette::Window, outline.lighter(kDarkening));
    return option;
  }

  // Where a point of the form is one and a half of the screen's, the style's line lies half under what it frames.
  static void DrawFrame(const QStyleOption& option, QPainter& painter) {
    constexpr int kLightening = 108;  // the style's, in percent
    const QColor window = option.palette.color(QPalette::Window);
    const QColor text = option.palette.color(QPalette::WindowText);
    const QColor line = IsDark(option.palette) ? Between(window, text, kFrameOutline) : window.darker(kDarkening);
    const QRect& all = option.rect;
    const QRect within = all.adjusted(1, 1, -1, -1);
    for (const QRect& side : QRegion(all).subtracted(within)) painter.fillRect(side, line.lighter(kLightening));
  }

  // What the ring has room in is of the colour of what it goes around.
  static void FillFrame(const QStyleOption& option, QPainter& painter) {
    const QRect within = option.rect.adjusted(1, 1, -1, -1);
    const int width = static_cast<int>(kRingWidth) - 1;
    const QRegion room = QRegion(within).subtracted(within.adjusted(width, width, -width, -width));
    for (const QRect& side : room) painter.fillRect(side, option.palette.color(QPalette::Base));
  }

  // Over the style's own frame, which lies under the title.
  void DrawGroupFrame(const QStyleOption& option, QPainter& painter) const {
    constexpr int kGap = 3;
    constexpr qreal kRadius = 2;
    const int title =
        std::max(QProxyStyle::pixelMetric(PM_ExclusiveIndicatorHeight), option.fontMetrics.height()) + kGap;
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
  if (QApplication::style()->name() != QLatin1String(kStyledHere)) return;
  QApplication::setStyle(new OutlineStyle(qApp));
  // A frame is not painted again for its focus.
  QObject::connect(qApp, &QApplication::focusChanged, qApp, [](QWidget* old, QWidget* now) {
    for (QWidget* widget : {old, now}) {
      if (qobject_cast<QAbstractScrollArea*>(widget) != nullptr) widget->update();
    }
  });
}

}  // namespace folionet
