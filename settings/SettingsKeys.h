#pragma once

#include <span>
#include <string_view>

namespace folionet {

// The form of a stored text.
enum class SettingForm {
  kFlag,       // "0" or "1"
  kColour,     // a 32-bit decimal integer, red + 256 * green + 65536 * blue
  kBoolean,    // True or False
  kNumber,     // a 16-bit decimal integer
  kPointSize,  // a decimal number of points, such as 10.5
  kEntry,      // an entry of the lists of encodings: a code, a blank and a description
  kText,       // as it stands
};

struct SettingKey {
  std::string_view name;
  SettingForm form;
  std::string_view defaultText;
};

// Where our own keys stand.
inline constexpr std::string_view kSettingsSection = "Keys";

// Every key of that section, in the order in which they are listed to a person.
std::span<const SettingKey> SettingKeys();

// The key of that name; nullptr when there is none.
const SettingKey* FindSettingKey(std::string_view name);

// What a value of this form looks like, for messages: "0 or 1".
std::string_view Describe(SettingForm form);

// 0 when `text` has the form; otherwise the number of the run-time error that reading it is.
int CheckSetting(SettingForm form, std::string_view text);

}  // namespace folionet
