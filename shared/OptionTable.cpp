#include "OptionTable.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

#include "FileNames.h"
#include "Numbers.h"
#include "RunTimeError.h"
#include "Utf8.h"

namespace folionet {
namespace {

using enum OptionForm;
using enum OptionPart;
using enum OptionSaving;

// The field that a path of members leads to.
template <auto... members>
constexpr auto kAt = +[](PageOptions& options) -> auto& {
  return (options.*....*members);
};

using Page = PageOptions;
using Effects = EffectsOptions;
constexpr auto kEffectsOf = &Page::frmEffects;
constexpr auto kSampleOf = &Page::txtSample;
constexpr auto kMainOf = &Page::main;

constexpr std::array kTable{
    Option{"chkBack", kFlag, "0", kFirst, kAtOnce, kAt<&Page::chkBack>},
    Option{"chkUseNames", kFlag, "1", kFirst, kAtOnce, kAt<&Page::chkUseNames>},
    Option{"Use83", kFlag, "0", kFirst, kAtExit, kAt<&Page::chkUse83>},
    Option{"cboLang", kText, kDefaultTitles, kLanguageFile, kAtOnce, kAt<kMainOf, &MainOptions::cboLang>},
    Option{"alignmentLR", kText, "Left", kAlignment, kAtExit, kAt<kMainOf, &MainOptions::alignmentLR>},
    Option{"Index_Alignment", kText, "Left", kAlignment, kAtExit, kAt<kMainOf, &MainOptions::alignment>},
    Option{"chkDoubleSpace", kFlag, "0", kSpacing, kAtExit, kAt<&Page::chkDoubleSpace>},
    Option{"Drive1", kText, "C:", kFolders, kAtExit, kAt<kMainOf, &MainOptions::Drive1>},
    Option{"Dir1", kText, "C:", kFolders, kAtExit, kAt<kMainOf, &MainOptions::Dir1>},
    Option{"FontBold", kBoolean, "False", kLooks, kAtExit, kAt<kSampleOf, &SampleText::FontBold>},
    Option{"FontItalic", kBoolean, "False", kLooks, kAtExit, kAt<kSampleOf, &SampleText::FontItalic>},
    Option{"chkCSS", kFlag, "0", kLooks, kAtOnce, kAt<&Page::chkCSS>},
    Option{"BackColor", kColour, "16777215", kSample, kAtExit, kAt<kSampleOf, &SampleText::BackColor>},
    Option{"ForeColor", kColour, "8389122", kSample, kAtExit, kAt<kSampleOf, &SampleText::ForeColor>},
    Option{"Font", kText, "Verdana", kSample, kAtExit, kAt<kSampleOf, &SampleText::FontName>},
    Option{"FontSize", kPointSize, "12", kSample, kAtExit, kAt<kSampleOf, &SampleText::FontSize>},
    Option{"lblHyperlink", kColour, "16711680", kEffects, kWithDialog,
           kAt<kEffectsOf, &Effects::lblHyperlink, &Swatch::colour>},
    Option{"lblActive", kColour, "255", kEffects, kWithDialog, kAt<kEffectsOf, &Effects::lblActive, &Swatch::colour>},
    Option{"lblFollowed", kColour, "8323199", kEffects, kWithDialog,
           kAt<kEffectsOf, &Effects::lblFollowed, &Swatch::colour>},
    Option{"lblRColor", kColour, "255", kEffects, kWithDialog, kAt<kEffectsOf, &Effects::lblRColor, &Swatch::colour>},
    Option{"cboFont", kText, "Default Font", kEffects, kWithDialog, kAt<kEffectsOf, &Effects::cboFont>},
    Option{"cboSize", kText, "Default Size", kEffects, kWithDialog, kAt<kEffectsOf, &Effects::cboSize>},
    Option{"cboStyle", kText, "Regular", kEffects, kWithDialog, kAt<kEffectsOf, &Effects::cboStyle>},
    Option{"chkSmallCaps", kFlag, "0", kEffects, kWithDialog, kAt<kEffectsOf, &Effects::chkSmallCaps>},
    Option{"chkAllCaps", kFlag, "0", kEffects, kWithDialog, kAt<kEffectsOf, &Effects::chkAllCaps>},
    Option{"chkUnderline", kFlag, "0", kEffects, kWithDialog, kAt<kEffectsOf, &Effects::chkUnderline>},
    Option{"chkRollover", kFlag, "1", kEffects, kWithDialog, kAt<kEffectsOf, &Effects::chkRollover>},
    Option{"KeywordsI", kTemplate,
           "%bible%, Online Bible, Versalia, Folionet, Free Online Bible, Free Bible, Christian literature, how to "
           "know Jesus, Christian Bible, Holy Scripture, God's Word",
           kKeywords, kWithDialog, kAt<&Page::frmKeywords, &MetaOptions::txtKeywordsI>},
    Option{"DescriptionI", kTemplate,
           "Read the %bible% Online or make your own for your Website or PC. Click on link at bottom of page to "
           "find out how...",
           kKeywords, kWithDialog, kAt<&Page::frmKeywords, &MetaOptions::txtDescriptionI>},
    Option{"Keywords", kTemplate,
           "%bible% %bk% %ch%:%vs%, Online Bible, Versalia, Folionet, Free %bible% Online Bible, Free %bible% "
           "Bible, Christian literature, how to know Jesus, Christian Bible, Holy Scripture, God's Word",
           kKeywords, kWithDialog, kAt<&Page::frmKeywords, &MetaOptions::txtKeyWords>},
    Option{"Description", kTemplate,
           "Read the %bible% %bk% %ch%:%vs% Online or make your own for your Website or PC. Click on link at "
           "bottom of page to find out how...",
           kKeywords, kWithDialog, kAt<&Page::frmKeywords, &MetaOptions::txtDescription>},
    Option{"index_html", kTemplate, "Read the %bible% Online.", kPageTitles, kWithDialog,
           kAt<&Page::frmPAgeTitles, &PageTitleOptions::txtIndex_html>},
    Option{"PageTitles", kTemplate, "FREE Online %bible%. %bk% Chapter %ch%:%vs%.", kPageTitles, kWithDialog,
           kAt<&Page::frmPAgeTitles, &PageTitleOptions::txtPageTitles>},
    Option{"LinkToMain", kTemplate, "Main Index: %bible%", kLinkToMain, kWithDialog,
           kAt<&Page::frmLinkToMAin, &LinkToMainOptions::txtLinkToMain>},
    Option{"LCR", kNumber, "2", kLinkToMain, kAtOnce, kAt<&Page::frmLinkToMAin, &LinkToMainOptions::LCR>},
    Option{"LinkBackSize", kNumber, "3", kLinkToMain, kAtOnce, kAt<&Page::frmLinkToMAin, &LinkToMainOptions::cboSize>},
    Option{"WaterMark", kFlag, "0", kBackground, kAtOnce, kAt<&Page::frmBackground, &BackgroundOptions::chkWaterMark>},
    Option{"BackImage", kText, "No Image Selected", kBackground, kWithDialog,
           kAt<&Page::frmBackground, &BackgroundOptions::txtImagepath>},
    Option{"Charset", kEntry, "windows-1252 (ANSI Latin 1)", kEncoding, kWithDialog,
           kAt<&Page::frmEncoding, &EncodingOptions::cboCharset>},
    Option{"Lang", kEntry, "en-us English USA", kEncoding, kWithDialog,
           kAt<&Page::frmEncoding, &EncodingOptions::cboLang>},
};
static_assert(kTable.size() <= kMostOptions);

// A number's text without more digits than it needs: 12, 10.5
std::string PlainText(double value) {
  std::array<char, 64> buffer{};  // the least number that is not 0 takes 48
  const auto result =
      std::to_chars(buffer.data(), buffer.data() + buffer.size(), static_cast<float>(value), std::chars_format::fixed);
  return {buffer.data(), result.ptr};
}

std::int64_t Integer(std::string_view text) { return ReadInteger(text, kInt32Min, kInt32Max).value; }

// Gives a field the value of its text, by the field's type.
struct Taking {
  std::string_view text;
  PageOptions& options;

  void operator()(bool& (*field)(PageOptions&)) const {
    field(options) = EqualIgnoringCase(TrimBlanks(text), "True") || Integer(text) == 1;
  }
  void operator()(std::int16_t& (*field)(PageOptions&)) const {
    field(options) = static_cast<std::int16_t>(Integer(text));
  }
  void operator()(Colour& (*field)(PageOptions&)) const { field(options) = static_cast<Colour>(Integer(text)); }
  void operator()(double& (*field)(PageOptions&)) const {
    field(options) = static_cast<double>(static_cast<float>(ReadNumber(text).value));
  }
  void operator()(std::string& (*field)(PageOptions&)) const { field(options) = text; }
};

// The text of a field's value, by the field's type.
struct Giving {
  OptionForm form;

  std::string operator()(bool value) const {
    if (form == kBoolean) return value ? "True" : "False";
    return value ? "1" : "0";
  }
  std::string operator()(std::int16_t value) const { return std::to_string(value); }
  std::string operator()(Colour value) const { return std::to_string(value); }
  std::string operator()(double value) const { return PlainText(value); }
  std::string operator()(const std::string& value) const { return value; }
};

}  // namespace

PageOptions::PageOptions() {
  for (const Option& option : kTable) SetOption(option, option.defaultText, *this);
}

std::span<const Option> OptionTable() { return kTable; }

const Option* FindOption(std::string_view key) {
  const auto* const found =
      std::find_if(kTable.begin(), kTable.end(), [&](const Option& option) { return option.key == key; });
  return found == kTable.end() ? nullptr : found;
}

std::size_t PlaceOf(const Option& option) { return static_cast<std::size_t>(&option - kTable.data()); }

std::string_view Describe(OptionForm form) {
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
    case kTemplate:
    case kText:
      break;
  }
  return "a text";
}

int CheckOption(OptionForm form, std::string_view text) {
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
      return CodeOfEntry(text).empty() ? kInvalidProcedureCall : 0;
    case kTemplate:
    case kText:
      break;
  }
  return 0;
}

std::string_view CodeOfEntry(std::string_view entry) {
  entry.remove_prefix(std::min(entry.find_first_not_of(" \t"), entry.size()));
  const std::size_t blank = entry.find(' ');
  return blank == std::string_view::npos ? std::string_view() : entry.substr(0, blank);
}

std::string OptionText(const Option& option, const PageOptions& options) {
  // The rows say how to get at a field to write it; nothing is written here.
  auto& record = const_cast<PageOptions&>(options);  // NOLINT(cppcoreguidelines-pro-type-const-cast)
  return std::visit([&](auto field) { return Giving{option.form}(field(record)); }, option.field);
}

void SetOption(const Option& option, std::string_view text, PageOptions& options) {
  std::visit(Taking{text, options}, option.field);
}

void MarkChosen(std::string_view key, PageOptions& options) { options.maySave.set(PlaceOf(*FindOption(key))); }

void ResetOptions(OptionPart part, PageOptions& options) {
  for (const Option& option : kTable) {
    if (option.part != part) continue;
    SetOption(option, option.defaultText, options);
    options.maySave.set(PlaceOf(option));
  }
}

}  // namespace folionet
