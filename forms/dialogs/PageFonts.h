#pragma once

#include <QFont>
#include <optional>
#include <string_view>

#include "PageOptions.h"

namespace folionet {

// The font of a page's text, its size kept to what a window can show.
QFont PageFont(const SampleText& sample, double smallest, double largest);

// The points of a style sheet's length, such as "12pt", "10px" or "0.5in"; nothing for any other text.
std::optional<double> PointsOf(std::string_view length);

// The font of a link under the mouse, where `page` is the font of the page. A size is kept to what a window can show.
QFont RolloverFont(const EffectsOptions& options, const QFont& page);

}  // namespace folionet
