#include "OptionSaving.h"

#include "JointChange.h"
#include "OptionLoading.h"

namespace folionet {
namespace {

// Stores the options for which `wanted` holds by `together`, which calls what it is given.
template <typename Wanted, typename Together>
void SaveWhere(SettingsStore& store, PageOptions& options, const Wanted& wanted, const Together& together) {
  auto saved = options.maySave;
  together([&] {
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

auto IsOfDialog(OptionPart part) {
  return [part](const Option& option) { return option.part == part && option.saving == OptionSaving::kWithDialog; };
}

}  // namespace

void SaveOption(SettingsStore& store, std::string_view key, const PageOptions& options) {
  store.SaveText(key, OptionText(*FindOption(key), options));
}

void SaveOptions(SettingsStore& store, OptionPart part, PageOptions& options) {
  SaveWhere(store, options, IsOfDialog(part), [&](const auto& saves) { store.SaveTogether(saves); });
}

void SaveOptions(SettingsStore& store, OptionPart part, PageOptions& options, JointChange& change) {
  SaveWhere(store, options, IsOfDialog(part), [&](const auto& saves) { store.SaveTogether(saves, change); });
}

void SaveDefaults(SettingsStore& store, PageOptions& options) {
  const auto isOfExit = [&](const Option& option) {
    return option.saving == OptionSaving::kAtExit &&
           (option.key != "alignmentLR" || IsKnownAlignment(options.main.alignment));
  };
  SaveWhere(store, options, isOfExit, [&](const auto& saves) { store.SaveTogether(saves); });
}

}  // namespace folionet
