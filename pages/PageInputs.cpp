#include "PageInputs.h"

#include "RunTimeError.h"

namespace folionet {

std::string PageText(const PageInputs& inputs, std::string_view pattern, std::string_view book,
                     std::string_view chapter) {
  auto text = BuildTitles(pattern, {inputs.options.txtBibleSel, book, chapter}, inputs.counts, inputs.ui);
  if (!text) throw AlreadyReported();
  return *std::move(text);
}

const std::string& BookName(const PageInputs& inputs, int book) {
  if (book < 1 || static_cast<std::size_t>(book) > inputs.glob.cboStartBook.size()) {
    throw RunTimeError(kSubscriptOutOfRange, "Book " + std::to_string(book), "There is no title for it.");
  }
  return inputs.glob.cboStartBook[static_cast<std::size_t>(book - 1)];
}

}  // namespace folionet
