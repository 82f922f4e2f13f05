#include "EncodingInUse.h"

namespace folionet {

PageEncoding ReadEncoding(AppState& state) {
  PageEncoding encoding;
  LoadPageEncoding(state.store, state.options, encoding, state.ui);
  TakeEncodingOf(state.glob.Imported, state.store, encoding, state.ui);
  return encoding;
}

void UseEncoding(AppState& state, const PageEncoding& read) {
  const PageEncoding& typed = state.typed;
  state.texts.PageLanguage = typed.PageLanguage.empty() ? read.PageLanguage : typed.PageLanguage;
  state.texts.PageCharset = typed.PageCharset.empty() ? read.PageCharset : typed.PageCharset;
  state.codePage = CodePage(state.texts.PageCharset);
}

}  // namespace folionet
