#pragma once

#include <string>

#include "PageOptions.h"

namespace folionet {

// The two texts that the hyperlink options put into every page without a style sheet.
struct LinkEffects {
  std::string RolloverStyle;  // a one-line style block for a link under the mouse; empty when the effect is off
  std::string BodyLinkTag;    // "<body link=..." without its closing bracket; empty when no colour was picked
};

LinkEffects Effects(const EffectsOptions& options);

}  // namespace folionet
