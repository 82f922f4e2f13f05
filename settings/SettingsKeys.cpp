#include "SettingsKeys.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

#include "CodePage.h"
#include "Numbers.h"
#include "RunTimeError.h"

namespace folionet {
namespace {

using enum SettingForm;

constexpr std::array kKeys{
    SettingKey{"chkBack", kFlag, "0"},
    SettingKey{"chkUseNames", kFlag, "1"},
    SettingKey{"Use83", kFlag, "0"},
    SettingKey{"cboLang", kText, "BOOKS.TXT"},
    SettingKey{"alignmentLR", kText, "Left"},
    SettingKey{"Index_Alignment", kText, "Left"},
    SettingKey{"chkDoubleSpace", kFlag, "0"},
    SettingKey{"Drive1", kText, "C:"},
    SettingKey{"Dir1", kText, "C:"},
    SettingKey{"FontBold", kBoolean, "False"},
    SettingKey{"FontItalic", kBoolean, "False"},
    SettingKey{"chkCSS", kFlag, "0"},
    SettingKey{"BackColor", kColour, "16777215"},
    SettingKey{"ForeColor", kColour, "8389122"},
    SettingKey{"Font", kText, "Verdana"},
    SettingKey{"FontSize", kPointSize, "12"},
    SettingKey{"lblHyperlink", kColour, "16711680"},
    SettingKey{"lblActive", kColour, "255"},
    SettingKey{"lblFollowed", kColour, "8323199"},
    SettingKey{"lblRColor", kColour, "255"},
    SettingKey{"cboFont", kText, "Default Font"},
    SettingKey{"cboSize", kText, "Default Size"},
    SettingKey{"cboStyle", kText, "Regular"},
    SettingKey{"chkSmallCaps", kFlag, "0"},
    SettingKey{"chkAllCaps", kFlag, "0"},
    SettingKey{"chkUnderline", kFlag, "0"},
    SettingKey{"chkRollover", kFlag, "1"},
    SettingKey{"KeywordsI", kText,
               "%bible%, Online Bible, Versalia, Folionet, Free Online Bible, Free Bible, Christian literature, how to "
               "know Jesus, Christian Bible, Holy Scripture, God's Word"},
    SettingKey{"DescriptionI", kText,
               "Read the %bible% Online or make your own for your Website or PC. Click on link at bottom of page to "
               "find out how..."},
    SettingKey{"Keywords", kText,
               "%bible% %bk% %ch%:%vs%, Online Bible, Versalia, Folionet, Free %bible% Online Bible, Free %bible% "
               "Bible, Christian literature, how to know Jesus, Christian Bible, Holy Scripture, God's Word"},
    SettingKey{"Description", kText,
               "Read the %bible% %bk% %ch%:%vs% Online or make your own for your Website or PC. Click on link at "
               "bottom of page to find out how..."},
    SettingKey{"index_html", kText, "Read the %bible% Online."},
    SettingKey{"PageTitles", kText, "FREE Online %bible%. %bk% Chapter %ch%:%vs%."},
    SettingKey{"LinkToMain", kText, "Main Index: %bible%"},
    SettingKey{"LCR", kNumber, "2"},
    SettingKey{"LinkBackSize", kNumber, "3"},
    SettingKey{"WaterMark", kFlag, "0"},
    SettingKey{"BackImage", kText, "No Image Selected"},
    SettingKey{"Charset", kEntry, "windows-1252 (ANSI Latin 1)"},
    SettingKey{"Lang", kEntry, "en-us English USA"},
};

}  // namespace

std::span<const SettingKey> SettingKeys() { return kKeys; }

const SettingKey* FindSettingKey(std::string_view name) {
  const auto found = std::find_if(kKeys.begin(), kKeys.end(), [&](const SettingKey& key) { return key.name == name; });
  return found == kKeys.end() ? nullptr : &*found;
}

std::string_view Describe(SettingForm form) {
  switch (form) {
    case kFlag:
      return "0 or 1";
    case kColour:
      return "a colour as a decimal number, red + 256 x green + 65536 x blue";
    case kBoolean:
      return "True or False";
    case kNumber:
      return "a whole number from -32768 to 32767";
    case kPointSize:
      return "a number of points";
    case kEntry:
      return "a code, a blank and a description";
    case kText:
      break;
  }
  return "a text";
}

int CheckSetting(SettingForm form, std::string_view text) {
  switch (form) {
    case kFlag: {
      const IntegerReading reading = ReadInteger(text, kInt16Min, kInt16Max);
      if (reading.error != 0) return reading.error;
      return reading.value == 0 || reading.value == 1 ? 0 : kInvalidProcedureCall;
    }
    case kColour:
      return ReadInteger(text, kInt32Min, kInt32Max).error;
    case kBoolean:
      return EqualIgnoringCase(TrimBlanks(text), "True") || EqualIgnoringCase(TrimBlanks(text), "False")
                 ? 0
                 : kTypeMismatch;
    case kNumber:
      return ReadInteger(text, kInt16Min, kInt16Max).error;
    case kPointSize: {
      const NumberReading reading = ReadNumber(text);
      const bool isSingle = std::abs(reading.value) <= static_cast<double>(std::numeric_limits<float>::max());
      return reading.error == 0 && !isSingle ? kOverflow : reading.error;
    }
    case kEntry:
      return text.find(' ') == std::string_view::npos ? kInvalidProcedureCall : 0;
    case kText:
      break;
  }
  return 0;
}

}  // namespace folionet
