#include "EncodingInUse.h"

#include "PageEncoding.h"

namespace folionet {

PageEncoding ReadEncoding(AppState& state) {
  return ReadPageEncoding(state.store, state.options, state.glob.Imported, state.ui);
}

void UseEncoding(AppState& state, const PageEncoding& read) {
  const PageEncoding& typed = state.typed;
  state.texts.PageLanguage = typed.PageLanguage.empty() ? read.PageLanguage : typed.PageLanguage;
  state.texts.PageCharset = typed.PageCharset.empty() ? read.PageCharset : typed.PageCharset;
  state.codePage = CodePage(state.texts.PageCharset);
}

}  // namespace folionet
