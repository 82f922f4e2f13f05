#pragma once

#include <optional>
#include <string>

#include "ChapterIndex.h"
#include "PageOptions.h"
#include "UserInterface.h"

namespace folionet {

// The finished HTML of the link back to the index page (`txtBackToString`), in the encoding of `options`. The link text
// is built with "1" as its book and "1" as its chapter. Nothing when BuildTitles reported a failure.
std::optional<std::string> SetString(const PageOptions& options, const VerseCounts& counts, UserInterface& ui);

// The line of a chapter page that holds the link back. Without a style sheet the page carries one anchor inside the
// other, and no blank stands before "size=": both are meant.
std::string BuildLinkToMain(const PageOptions& options, const std::string& backToString, int fontSize,
                            const std::string& fontFace);

}  // namespace folionet
