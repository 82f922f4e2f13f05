#include "PageInputs.h"

#include "RunTimeError.h"

namespace folionet {

std::string FillTemplate(const PageInputs& inputs, PageTemplate& pattern, std::string_view book,
                         std::string_view chapter) {
  auto text = pattern.Build(book, chapter, inputs.counts, inputs.ui);
  if (!text) throw AlreadyReported();
  return *std::move(text);
}

std::string FillIndexTemplate(const PageInputs& inputs, std::string_view pattern) {
  PageTemplate index(pattern, inputs.options.txtBibleSel);
  return FillTemplate(inputs, index, "", "");
}

const std::string& BookName(const PageInputs& inputs, int book) {
  if (book < 1 || static_cast<std::size_t>(book) > inputs.glob.cboStartBook.size()) {
    throw RunTimeError(kSubscriptOutOfRange, "Book " + std::to_string(book), "There is no title for it.")
        .About(Subject::kBookTitles);
  }
  return inputs.glob.cboStartBook[static_cast<std::size_t>(book - 1)];
}

}  // namespace folionet
