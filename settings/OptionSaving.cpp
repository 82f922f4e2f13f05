#include "OptionSaving.h"

#include "OptionLoading.h"
#include "RunTimeError.h"

namespace folionet {
namespace {

// Notes for which options the saving is refused, and throws what refuses it.
template <typename Wanted, typename Save>
void NoteRefused(PageOptions& options, const Wanted& wanted, const Save& save) {
  const auto note = [&](bool isRefused) {
    for (const Option& option : OptionTable()) {
      if (wanted(option)) options.isRefused.set(PlaceOf(option), isRefused);
    }
  };
  try {
    save();
  } catch (const RunTimeError&) {
    note(true);
    throw;
  }
  note(false);
}

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

void SaveOption(SettingsStore& store, std::string_view key, PageOptions& options) {
  SaveOption(store, key, OptionText(*FindOption(key), options), options);
}

void SaveOption(SettingsStore& store, std::string_view key, std::string_view text, PageOptions& options) {
  MarkChosen(key, options);
  NoteRefused(
      options, [&](const Option& option) { return option.key == key; }, [&] { store.SaveText(key, text); });
}

void SaveOptions(SettingsStore& store, OptionPart part, PageOptions& options) {
  const auto wanted = IsOfDialog(part);
  NoteRefused(options, wanted,
              [&] { SaveWhere(store, options, wanted, [&](const auto& saves) { store.SaveTogether(saves); }); });
}

void SaveDefaults(SettingsStore& store, PageOptions& options) {
  const auto isOfExit = [&](const Option& option) {
    if (options.isRefused.test(PlaceOf(option))) return true;
    return option.saving == OptionSaving::kAtExit &&
           (option.key != "alignmentLR" || IsKnownAlignment(options.main.alignment));
  };
  // Of settings that could not be read there is nothing to store: a person is told that they still cannot be.
  if (options.maySave.none()) store.TrySaving();
  SaveWhere(store, options, isOfExit, [&](const auto& saves) { store.SaveTogether(saves); });
}

}  // namespace folionet
