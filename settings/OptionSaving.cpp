#include "OptionSaving.h"

#include "OptionLoading.h"

namespace folionet {
namespace {

template <typename Wanted>
void SaveWhere(SettingsStore& store, PageOptions& options, const Wanted& wanted) {
  auto saved = options.maySave;
  store.SaveTogether([&] {
    for (const Option& option : OptionTable()) {
      if (!wanted(option)) continue;
      const std::string text = OptionText(option, options);
      if (!options.maySave.test(PlaceOf(option)) && text == option.defaultText) continue;
      store.SaveText(option.key, text);
      saved.set(PlaceOf(option));
    }
  });
  options.maySave = saved;
}

}  // namespace

void SaveOption(SettingsStore& store, std::string_view key, const PageOptions& options) {
  store.SaveText(key, OptionText(*FindOption(key), options));
}

void SaveOptions(SettingsStore& store, OptionPart part, PageOptions& options) {
  SaveWhere(store, options,
            [part](const Option& option) { return option.part == part && option.saving == OptionSaving::kWithDialog; });
}

void SaveDefaults(SettingsStore& store, PageOptions& options) {
  SaveWhere(store, options, [&](const Option& option) {
    return option.saving == OptionSaving::kAtExit &&
           (option.key != "alignmentLR" || IsKnownAlignment(options.main.alignment));
  });
}

}  // namespace folionet
