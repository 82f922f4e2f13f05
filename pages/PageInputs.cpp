#include "PageInputs.h"

#include "RunTimeError.h"

namespace folionet {

std::string PageText(const PageInputs& inputs, PageTitles& titles, std::string_view book, std::string_view chapter) {
  auto text = titles.Build(book, chapter, inputs.counts, inputs.ui);
  if (!text) throw AlreadyReported();
  return *std::move(text);
}

std::string IndexText(const PageInputs& inputs, std::string_view pattern) {
  PageTitles titles(pattern, inputs.options.txtBibleSel);
  return PageText(inputs, titles, "", "");
}

const std::string& BookName(const PageInputs& inputs, int book) {
  if (book < 1 || static_cast<std::size_t>(book) > inputs.glob.cboStartBook.size()) {
    throw RunTimeError(kSubscriptOutOfRange, "Book " + std::to_string(book), "There is no title for it.")
        .About(Subject::kBookTitles);
  }
  return inputs.glob.cboStartBook[static_cast<std::size_t>(book - 1)];
}

}  // namespace folionet
