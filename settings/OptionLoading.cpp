#include "OptionLoading.h"

#include <array>
#include <optional>

#include "Numbers.h"
#include "RunTimeError.h"
#include "Text.h"

namespace folionet {
namespace {

constexpr std::array kSwatches{&EffectsOptions::lblHyperlink, &EffectsOptions::lblActive, &EffectsOptions::lblFollowed,
                               &EffectsOptions::lblRColor};

void MarkDefaultSwatches(EffectsOptions& effects) {
  const EffectsOptions defaults = PageOptions().frmEffects;
  for (const auto swatch : kSwatches) {
    if ((effects.*swatch).colour == (defaults.*swatch).colour) (effects.*swatch).isDefault = true;
  }
}

void FinishLinkToMain(LinkToMainOptions& link) {
  if (const std::string_view word = AlignmentWord(link.LCR); !word.empty()) link.alignment = word;
  if (ReadInteger(link.cboSize, kInt16Min, kInt16Max - 8).error != 0) {
    throw RunTimeError(kOverflow, "LinkBackSize", "The size plus 8 points must fit 16 bits: " + link.cboSize)
        .About(Subject::kSetting);
  }
}

// The names of folders and of files of titles stand in no page, and may hold anything; numbers and words of fixed forms
// are refused as they stand.
std::string TextOf(const StoredSettings& store, const Option& option) {
  const std::string text = store.Text(option.key);
  const bool isName = option.part == OptionPart::kFolders || option.part == OptionPart::kLanguageFile;
  return isName || !IsFreeText(option.form) ? text : InOneLine(text);
}

}  // namespace

void LoadOption(const StoredSettings& store, const Option& option, PageOptions& options) {
  const std::size_t place = PlaceOf(option);
  const bool isChosen = options.maySave.test(place) || OptionText(option, options) != option.defaultText;
  if (isChosen && options.areKept) return;
  const std::string text = TextOf(store, option);
  const int error = CheckOption(option.form, text);
  if (error != 0 && isChosen) return;
  if (error != 0) {
    throw RunTimeError(error, store.FileOf(option.key),
                       std::string("The setting ").append(option.key).append(" must be ") +
                           std::string(Describe(option.form)) + ": \"" + text + "\"")
        .About(Subject::kSetting);
  }
  SetOption(option, text, options);
  options.maySave.set(place);
}

void LoadOptions(const StoredSettings& store, OptionPart part, PageOptions& options) {
  std::optional<RunTimeError> failure;
  const auto read = [&](const auto& reading) {
    try {
      reading();
    } catch (const RunTimeError& error) {
      if (!failure) failure = error;
    }
  };
  for (const Option& option : OptionTable()) {
    if (option.part == part) read([&] { LoadOption(store, option, options); });
  }
  if (part == OptionPart::kEffects) MarkDefaultSwatches(options.frmEffects);
  if (part == OptionPart::kLinkToMain) read([&] { FinishLinkToMain(options.frmLinkToMAin); });
  if (failure) throw RunTimeError(*failure);
}

void LoadAllOptions(const StoredSettings& store, PageOptions& options) {
  for (int part = 0; part <= static_cast<int>(kLastOptionPart); ++part) {
    LoadOptions(store, static_cast<OptionPart>(part), options);
  }
}

void LoadMissingOptions(const StoredSettings& store, PageOptions& options) {
  for (const Option& option : OptionTable()) {
    if (options.maySave.test(PlaceOf(option))) continue;
    try {
      LoadOption(store, option, options);
    } catch (const RunTimeError&) {
      // The start has reported the one that it stopped at.
    }
  }
}

bool IsChosenFolder(std::string_view text) { return !text.empty() && text != FindOption("Dir1")->defaultText; }

bool IsKnownAlignment(std::string_view text) { return text == "Left" || text == "Center" || text == "Justify"; }

std::string SelectedAlignment(const MainOptions& main) {
  if (IsKnownAlignment(main.alignment)) return main.alignment;
  return main.alignmentLR == "Left" ? "Left" : "Center";
}

std::string_view AlignmentWord(int justification) {
  constexpr std::array<std::string_view, 3> kWords{"left", "center", "right"};
  return justification >= 1 && justification <= 3 ? kWords[static_cast<std::size_t>(justification - 1)] : "";
}

}  // namespace folionet
