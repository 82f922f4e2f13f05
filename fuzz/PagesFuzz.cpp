// Reads any bytes as a page of a site and as a style sheet, and looks for what they name.

#include <algorithm>

#include "Addresses.h"
#include "FuzzFiles.h"
#include "PageCharset.h"
#include "PageLinks.h"
#include "StyleLinks.h"
#include "Utf8.h"

namespace folionet::fuzz {
namespace {

void Look(const std::string& address) {
  if (!IsUtf8(address)) std::abort();
  if (IsElsewhere(address) && !LocalTarget(address).empty()) std::abort();
  LocalTarget(RefreshAddress(address));
}

void ReadSheet(const std::string& sheet) {
  const auto lines = static_cast<std::size_t>(std::count(sheet.begin(), sheet.end(), '\n'));
  for (const StyleLink& link : FindStyleLinks(sheet)) {
    if (link.line > lines) std::abort();
  }
  for (const StyleLink& picture : FindPictures(sheet)) Look(picture.address);
}

// The line of each link is one of the page, and none is before the last.
void ReadPage(const std::string& page) {
  const auto lines = static_cast<std::size_t>(std::count(page.begin(), page.end(), '\n')) + 1;
  std::size_t line = 1;
  for (const PageLink& link : FindPageLinks(page)) {
    if (link.line < line || link.line > lines) std::abort();
    line = link.line;
    Look(AsBrowsersRead(link.value));
    if (link.form == LinkForm::kStyle) ReadSheet(link.value);
  }
}

}  // namespace
}  // namespace folionet::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace folionet;
  using namespace folionet::fuzz;
  const std::string_view input = Text(data, size);
  const CodePage codePage(FindPageCharset(input));
  const std::string page = DecodePage(input, codePage);
  if (!IsUtf8(page)) std::abort();
  ReadPage(page);
  ReadSheet(AsBrowsersRead(page));
  const CodePage utf8("utf-8");
  if (AsItIsWritten(DecodePage(input, utf8)) != input) std::abort();
  return 0;
}
