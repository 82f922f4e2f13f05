#include "PageFonts.h"

#include <algorithm>
#include <array>

#include "QtText.h"

namespace folionet {
namespace {

struct Unit {
  std::string_view name;
  double points;
};

constexpr std::array kUnits{Unit{"pt", 1},  Unit{"px", 0.75},      Unit{"in", 72},
                            Unit{"pc", 12}, Unit{"cm", 72 / 2.54}, Unit{"mm", 72 / 25.4}};

}  // namespace

QFont PageFont(const SampleText& sample, double smallest, double largest) {
  QFont font(ToQt(sample.FontName));
  font.setPointSizeF(std::clamp(sample.FontSize, smallest, largest));
  font.setBold(sample.FontBold);
  font.setItalic(sample.FontItalic);
  return font;
}

std::optional<double> PointsOf(std::string_view length) {
  for (const auto& [name, points] : kUnits) {
    if (!length.ends_with(name)) continue;
    bool isNumber = false;
    const double value = ToQt(length.substr(0, length.size() - name.size())).toDouble(&isNumber);
    if (isNumber && value > 0) return value * points;
  }
  return std::nullopt;
}

QFont RolloverFont(const EffectsOptions& options, const QFont& page) {
  constexpr double kSmallest = 4;
  constexpr double kLargest = 48;
  const auto styleHas = [&](const char* word) { return options.cboStyle.find(word) != std::string::npos; };
  QFont font = page;
  if (options.cboFont != "Default Font") font.setFamilies({ToQt(options.cboFont)});
  if (const auto points = PointsOf(options.cboSize)) font.setPointSizeF(std::clamp(*points, kSmallest, kLargest));
  font.setUnderline(options.chkUnderline);
  if (styleHas("Italic")) font.setItalic(true);
  if (styleHas("Bold")) font.setBold(true);
  if (options.chkSmallCaps) font.setCapitalization(QFont::SmallCaps);
  if (options.chkAllCaps) font.setCapitalization(QFont::AllUppercase);
  return font;
}

}  // namespace folionet
