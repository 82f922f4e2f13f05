#pragma once

#include <string>
#include <string_view>

#include "OwnText.h"
#include "UserInterface.h"

namespace folionet {

// What tells the custom header from the custom footer.
struct CustomHtmlKind {
  std::string_view fileName;  // in the program folder
  Procedure load;
};

inline constexpr CustomHtmlKind kCustomHeader{"CustomHeader.txt", Procedure::kLoadCustomHeader};
inline constexpr CustomHtmlKind kCustomFooter{"CustomFooter.txt", Procedure::kLoadCustomFooter};

// Reads the custom HTML from its file, whole, into `text` as UTF-8; a missing file is no failure and leaves `text` as
// it was. A failure is reported by the load. False when it was.
bool LoadCustomHtml(const OwnFolder& folder, const CustomHtmlKind& kind, std::string& text, UserInterface& ui);

// Writes the text and one further CR LF, in the code page; the old file stays whole until the new one is. A failure is
// reported by Procedure::kUnloadCustomHtml. False when it was.
bool SaveCustomHtml(const OwnFolder& folder, const CustomHtmlKind& kind, std::string_view text, UserInterface& ui);

}  // namespace folionet
