#pragma once

#include <string>
#include <string_view>

#include "PageOptions.h"
#include "StoredSettings.h"

namespace folionet {

// The loading of the option records. A routine throws RunTimeError when a stored text has not its key's form; the
// fields that it had read by then are set, the others are as they were.

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
AlignmentReading LoadAlignment(const StoredSettings& store);

// Whether it is one of the three words.
bool IsKnownAlignment(std::string_view text);

// Colours, font name and point size, in this order.
void GetDefaults(const StoredSettings& store, SampleText& sample);

// Reads what SaveDefaults writes, each key by itself: one whose text has not its form leaves its field as it is. For a
// start that stopped half-way, so that its exit does not write defaults over what is stored.
void ReadForSaveDefaults(const StoredSettings& store, PageOptions& options, MainOptions& main);

void LoadTitles(const StoredSettings& store, PageTitleOptions& options);

void LoadMETA(const StoredSettings& store, MetaOptions& options);

// The alignment word of an "LCR" value: "left", "center", "right"; empty for any other value.
std::string_view AlignmentWord(int justification);

// Text, alignment and size of the link back. The size text is kept as read and must be a 16-bit number whose value
// plus 8 is one too (kOverflow otherwise).
void LoadLinkToMain(const StoredSettings& store, LinkToMainOptions& options);

void LoadBackground(const StoredSettings& store, BackgroundOptions& options);

// `ask` 0 loads every option, 1 resets every option without saving, any other value does nothing. On loading, a swatch
// is marked as default when its colour is the default one, and otherwise keeps its mark.
void SetDefaultHyperlinkColors(const StoredSettings& store, EffectsOptions& options, int ask);

// Every page option, from the store, in the order of the main form's start; for programs without a form.
PageOptions LoadPageOptions(const StoredSettings& store, MainOptions& main);

}  // namespace folionet
