#pragma once

#include <string>
#include <string_view>

#include "OptionTable.h"
#include "StoredSettings.h"

namespace folionet {

// Reads one option. What the pages show of a stored text is one line, a blank for each break. A stored text that has
// not its form leaves the field as it is and throws RunTimeError (kTypeMismatch, kOverflow or kInvalidProcedureCall)
// that names file, key and text; so does a settings file that cannot be read. Once the field was given another value, a
// text that has not its form is no failure: the field stands, as it does in any case for options that are kept.
void LoadOption(const StoredSettings& store, const Option& option, PageOptions& options);

// Reads each option of a part by itself, as LoadOption does, and with them what follows from them: the alignment word
// of the link back, and which swatches are marked as default. Throws the first failure when all were read; kOverflow
// for a size of the link back that with 8 points added does not fit 16 bits.
void LoadOptions(const StoredSettings& store, OptionPart part, PageOptions& options);

// Every option, in the order of the main form's start. Throws the first failure.
void LoadAllOptions(const StoredSettings& store, PageOptions& options);

// Reads each option that may not be saved as it is now, passing over those that cannot be read. For a start that
// stopped half-way, so that its exit saves what is stored.
void LoadMissingOptions(const StoredSettings& store, PageOptions& options);

// The overall link alignment whose option a start selects: by "alignmentLR" first, where every word but "Left" means
// "Center"; then "Index_Alignment" wins when it is one of the three words.
std::string SelectedAlignment(const MainOptions& main);

// Whether it is one of the three words.
bool IsKnownAlignment(std::string_view text);

// The alignment word of an "LCR" value: "left", "center", "right"; empty for any other value.
std::string_view AlignmentWord(int justification);

// Whether the text of "Drive1" or "Dir1" is a folder that was chosen: its default stands for none.
bool IsChosenFolder(std::string_view text);

}  // namespace folionet
