#include "SiteSettings.h"

#include <algorithm>
#include <array>
#include <filesystem>

#include "OptionLoading.h"
#include "Paths.h"
#include "RunTimeError.h"
#include "StoredSettings.h"
#include "WholeFile.h"

namespace folionet {
namespace {

constexpr std::array kChoices{kSiteTranslation, kSiteBooks, kSiteIndexAddress, kSiteSitemap, kSiteOnlyChosen};

bool IsKnown(const std::string& name) {
  const std::size_t slash = name.find('/');
  if (slash == std::string::npos) return false;
  const std::string_view section = std::string_view(name).substr(0, slash);
  const std::string_view key = std::string_view(name).substr(slash + 1);
  if (section == kSettingsSection) return FindOption(key) != nullptr;
  return section == kSiteSection && std::find(kChoices.begin(), kChoices.end(), key) != kChoices.end();
}

bool IsOfSections(const std::string& name) {
  return name.starts_with(IniName(kSiteSection, "")) || name.starts_with(IniName(kSettingsSection, ""));
}

// "[Site] Books"; a name that stands before the first section is that alone.
std::string ShownName(const std::string& name) {
  const std::size_t slash = name.find('/');
  return slash == std::string::npos ? name : "[" + name.substr(0, slash) + "] " + name.substr(slash + 1);
}

// The folder as it is written in the site's file, where it is still that one.
void KeepFolder(const IniValues& before, const std::string& path, IniValues& values) {
  const std::string name = IniName(kSettingsSection, "Dir1");
  const std::optional<std::string> written = FindIni(before, name);
  const auto wanted = values.find(name);
  if (!written || wanted == values.end()) return;
  if (IsSameFolder(FolderOfSite(*written, path), wanted->second)) wanted->second = *written;
}

// The choices as the file holds them.
IniValues SiteValues(const SiteChoices& choices) {
  IniValues values;
  for (const auto& [key, text] :
       {std::pair{kSiteTranslation, choices.translation}, std::pair{kSiteBooks, choices.books},
        std::pair{kSiteIndexAddress, choices.indexAddress}, std::pair{kSiteSitemap, choices.sitemap},
        std::pair{kSiteOnlyChosen, std::string(choices.onlyChosen ? "1" : "")}}) {
    if (!text.empty()) values.emplace(IniName(kSiteSection, key), text);
  }
  return values;
}

}  // namespace

std::optional<Sentence> WhyNoSite(const std::string& path) {
  IniValues values;
  try {
    values = ParseIni(ReadWholeFile(path, StoredSettings::kLongestFile), path);
  } catch (const RunTimeError& error) {
    const std::string why = error.Detail().empty() ? std::string(StandardMessage(error.Number())) : error.Detail();
    return Sentence{Words("QObject", "%1 cannot be read: %2"), {path, why}};
  }
  if (std::none_of(values.begin(), values.end(), [](const auto& value) { return IsOfSections(value.first); })) {
    return Sentence{Words("QObject", "%1 does not hold the settings of a site, which stand below [Site] and [Keys]."),
                    {path}};
  }
  for (const auto& [name, value] : values) {
    if (!IsKnown(name)) {
      return Sentence{Words("QObject", "%1 holds a setting that no site has: %2"), {path, ShownName(name)}};
    }
  }
  const auto only = values.find(IniName(kSiteSection, kSiteOnlyChosen));
  if (only == values.end() || only->second == "0" || only->second == "1") return std::nullopt;
  return Sentence{Words("QObject", "%1: %2 must be 0 or 1: \"%3\""), {path, ShownName(only->first), only->second}};
}

std::string FolderOfSite(const std::string& text, const std::string& path) {
  if (!IsChosenFolder(text)) return text;
  const std::string folder = NativePath(text);
  if (folder.starts_with("~/")) {
    const std::string home = UserFolder("HOME", "");
    if (!home.empty()) return home + folder.substr(2);
  }
  return (std::filesystem::path(path).parent_path() / folder).lexically_normal().string();
}

SiteChoices ChoicesOfSite(const StoredSettings& store) {
  return {store.SiteText(kSiteTranslation),       store.SiteText(kSiteBooks),
          store.SiteText(kSiteIndexAddress),      store.SiteText(kSiteSitemap),
          store.SiteText(kSiteOnlyChosen) == "1", false};
}

void SaveSite(const std::string& path, const SiteChoices& choices, const PageOptions& options,
              const StoredSettings& store) {
  IniValues values = SiteValues(choices);
  for (const Option& option : OptionTable()) {
    if (!options.maySave.test(PlaceOf(option))) continue;
    const std::string text = OptionText(option, options);
    const bool isLeftToText = choices.bringsEncoding && option.part == OptionPart::kEncoding && !store.Has(option.key);
    const bool isNoFolder = option.key == "Drive1" || (option.key == "Dir1" && !IsChosenFolder(text));
    if (isNoFolder || isLeftToText) continue;
    values.emplace(IniName(kSettingsSection, option.key), text);
  }
  WorkAbout(Subject::kSettingsFile, [&] {
    EditWholeFile(path, StoredSettings::kLongestFile, [&](const std::string& content) {
      if (const auto why = content.empty() ? std::nullopt : WhyNoSite(path)) {
        throw RunTimeError(kBadFileName, path, why->InEnglish());
      }
      const IniValues before = ParseIni(content, path);
      KeepFolder(before, path, values);
      return EditIni(content, ChangesBetween(before, values), path);
    });
  });
}

}  // namespace folionet
