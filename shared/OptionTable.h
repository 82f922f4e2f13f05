#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "Colours.h"
#include "PageOptions.h"

namespace folionet {

// The one table of the options that outlive a run of the program, a row each. Loading, saving, resetting, listing and
// encoding are loops over it: a new option is a row here and a field in PageOptions.h, and then a control that shows
// it.

// The form of a stored text.
enum class OptionForm {
  kFlag,       // "0" or "1"
  kColour,     // a 32-bit decimal integer, red + 256 * green + 65536 * blue
  kBoolean,    // True or False
  kNumber,     // a 16-bit decimal integer
  kPointSize,  // a decimal number of points, such as 10.5
  kEntry,      // an entry of the lists of encodings: a code, a blank and a description; free text, as the next
  kTemplate,   // a text that may hold dynamic words, which a look through typed texts checks
  kText,       // as it stands
};

// What shows an option, a step of the main form's start or a dialog, in the order of the start.
enum class OptionPart {
  kFirst,
  kLanguageFile,
  kAlignment,
  kSpacing,
  kFolders,
  kBackground,
  kPageTitles,
  kEffects,
  kKeywords,
  kSample,
  kEncoding,
  kLinkToMain,
  kLooks,
};
inline constexpr OptionPart kLastOptionPart = OptionPart::kLooks;

enum class OptionSaving {
  kAtOnce,      // by itself, as its control changes
  kWithDialog,  // with the others of its part, when the dialog is left by its button
  kAtExit,
};

// Gives the field of a record that holds an option.
using OptionField = std::variant<bool& (*)(PageOptions&), std::int16_t& (*)(PageOptions&), Colour& (*)(PageOptions&),
                                 double& (*)(PageOptions&), std::string& (*)(PageOptions&)>;

struct Option {
  std::string_view key;
  OptionForm form;
  std::string_view defaultText;
  OptionPart part;
  OptionSaving saving;
  OptionField field;
};

// Every option, in the order in which they are listed to a person.
std::span<const Option> OptionTable();

// The option of that key; nullptr when there is none.
const Option* FindOption(std::string_view key);

// Its place in the table, of which it is a row.
std::size_t PlaceOf(const Option& option);

// What a text of this form looks like, for messages: "0 or 1".
std::string_view Describe(OptionForm form);

// Whether a person types it as he likes, not as a number or one of a few words.
constexpr bool IsFreeText(OptionForm form) { return form >= OptionForm::kEntry; }

// 0 when `text` has the form; otherwise the number of the run-time error that reading it is.
int CheckOption(OptionForm form, std::string_view text);

// The code that an entry of the lists of encodings begins with, without the blanks before it; empty where no code with
// a blank behind it is there.
std::string_view CodeOfEntry(std::string_view entry);

// The text that the option's field is stored as.
std::string OptionText(const Option& option, const PageOptions& options);

// Gives the field the value of a text that has the option's form.
void SetOption(const Option& option, std::string_view text, PageOptions& options);

// Notes that a person has chosen the option's value, be it its default. There is a row of that key.
void MarkChosen(std::string_view key, PageOptions& options);

// Gives every option of the part its default, chosen.
void ResetOptions(OptionPart part, PageOptions& options);

}  // namespace folionet
