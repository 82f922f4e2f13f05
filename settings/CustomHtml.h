#pragma once

#include <string>
#include <string_view>

#include "OwnText.h"
#include "UserInterface.h"

namespace folionet {

// What tells the custom header from the custom footer.
struct CustomHtmlKind {
  std::string_view fileName;   // in the program folder
  std::string_view loadLabel;  // of the error report
};

inline constexpr CustomHtmlKind kCustomHeader{"CustomHeader.txt", "Load_Custom_Header"};
inline constexpr CustomHtmlKind kCustomFooter{"CustomFooter.txt", "Load_Custom_Footer"};

// Reads the custom HTML from its file, whole, into `text` as UTF-8; a missing file is no failure and leaves `text` as
// it was. A failure is reported under the load label. False when it was.
bool LoadCustomHtml(const OwnFolder& folder, const CustomHtmlKind& kind, std::string& text, UserInterface& ui);

// Writes the text and one further CR LF, in the code page; the old file stays whole until the new one is. A failure is
// reported under "Unload_Form". False when it was.
bool SaveCustomHtml(const OwnFolder& folder, const CustomHtmlKind& kind, std::string_view text, UserInterface& ui);

}  // namespace folionet
