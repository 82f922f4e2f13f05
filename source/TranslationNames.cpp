#include "TranslationNames.h"

namespace folionet {

std::string ShownStem(const std::string& stem, const CodePage& codePage) {
  return codePage.FindUndecodable(stem) == std::string::npos ? codePage.Decode(stem) : CodePage().Decode(stem);
}

std::string ShownName(const ModGlob& glob, std::size_t place, const CodePage& codePage) {
  const bool isImported = place < glob.BibleImports.size() && glob.BibleImports[place].IsThere();
  return isImported ? glob.BibleImports[place].name : codePage.DecodeForDisplay(glob.BibleNames[place]);
}

std::string PageName(const ModGlob& glob, std::size_t place, const CodePage& codePage) {
  const bool isImported = place < glob.BibleImports.size() && glob.BibleImports[place].IsThere();
  if (!isImported) return glob.BibleNames[place];
  std::string name;
  for (const char c : glob.BibleImports[place].name) {
    if (c == '&') {
      name += "&amp;";
    } else if (c == '<' || c == '>') {
      name += c == '<' ? "&lt;" : "&gt;";
    } else {
      name += c;
    }
  }
  return codePage.Encode(name);
}

}  // namespace folionet
