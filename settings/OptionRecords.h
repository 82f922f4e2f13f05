#pragma once

#include <string>
#include <string_view>

#include "PageOptions.h"
#include "SettingsStore.h"

namespace folionet {

// The option records with their loading and saving. A loading routine throws RunTimeError when a stored text has not
// its key's form; the fields that it had read by then are set, the others are as they were. A saving routine stores all
// of its keys or, when it throws RunTimeError, none.

// What the main form keeps beside the page options.
struct MainOptions {
  std::string cboLang = "BOOKS.TXT";  // the file name of the book titles
  std::string alignment = "Left";     // overall link alignment; "Left", "Center" and "Justify" are known
  std::string Drive1 = "C:";
  std::string Dir1 = "C:";
};

// The overall link alignment that a start finds: "alignmentLR" first, where every word but "Left" means "Center", then
// "Index_Alignment", which wins when it is one of the three words. `selected` is the alignment whose option is
// selected; `text` is what "Index_Alignment" holds, whatever that is.
struct AlignmentReading {
  std::string selected;
  std::string text;
};
AlignmentReading LoadAlignment(const SettingsStore& store);

// Colours, font name and point size, in this order.
void GetDefaults(const SettingsStore& store, SampleText& sample);

// The twelve keys that are written at exit.
void SaveDefaults(SettingsStore& store, const PageOptions& options, const MainOptions& main);

// Reads what SaveDefaults writes, each key by itself: one whose text has not its form leaves its field as it is. For a
// start that stopped half-way, so that its exit does not write defaults over what is stored.
void ReadForSaveDefaults(const SettingsStore& store, PageOptions& options, MainOptions& main);

void LoadTitles(const SettingsStore& store, PageTitleOptions& options);
void SaveTitles(SettingsStore& store, const PageTitleOptions& options);

void LoadMETA(const SettingsStore& store, MetaOptions& options);
void SaveMETA(SettingsStore& store, const MetaOptions& options);

// The alignment word of an "LCR" value: "left", "center", "right"; empty for any other value.
std::string_view AlignmentWord(int justification);

// Text, alignment and size of the link back. The size text is kept as read and must be a 16-bit number whose value
// plus 8 is one too (kOverflow otherwise).
void LoadLinkToMain(const SettingsStore& store, LinkToMainOptions& options);
void SaveLinkToMain(SettingsStore& store, const LinkToMainOptions& options);
void SaveLCR(SettingsStore& store, int justification);
void SaveLinkBackSize(SettingsStore& store, int size);

void LoadBackground(const SettingsStore& store, BackgroundOptions& options);
void SaveBackImage(SettingsStore& store, const BackgroundOptions& options);
void SaveWaterMark(SettingsStore& store, const BackgroundOptions& options);

// `ask` 0 loads every option, 1 resets every option without saving, any other value does nothing. On loading, a swatch
// is marked as default when its colour is the default one, and otherwise keeps its mark.
void SetDefaultHyperlinkColors(const SettingsStore& store, EffectsOptions& options, int ask);
void SaveDefaultHyperlinkColors(SettingsStore& store, const EffectsOptions& options);

// Every page option, from the store, in the order of the main form's start; for programs without a form.
PageOptions LoadPageOptions(const SettingsStore& store, MainOptions& main);

}  // namespace folionet
