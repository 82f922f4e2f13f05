#pragma once

#include <optional>
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

// The custom HTML of its file, whole, as UTF-8; `unsaved` where there is no file. A failure is reported by the load,
// and then there is none.
std::optional<std::string> LoadCustomHtml(const OwnFolder& folder, const CustomHtmlKind& kind,
                                          const std::string& unsaved, UserInterface& ui);

// Writes the text and one further CR LF, in the code page; the old file stays whole until the new one is. A failure is
// reported by Procedure::kUnloadCustomHtml. False when it was.
bool SaveCustomHtml(const OwnFolder& folder, const CustomHtmlKind& kind, std::string_view text, UserInterface& ui);

}  // namespace folionet
