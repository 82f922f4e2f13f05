#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "PageOptions.h"
#include "Sentence.h"

namespace folionet {

class StoredSettings;

// The options and choices of one site in a file that a person names, such as "kjv.folionet": an INI text (IniText.h)
// with our own keys as the person's settings have them, and with what is chosen for a compile. What it lacks comes from
// the person's own settings. UTF-8.
//
//   [Site]
//   Translation=KJV
//   Books=NT
//   IndexAddress=index.html
//   Sitemap=https://example.org/kjv/
//   OnlyChosen=1
//
//   [Keys]
//   Dir1=kjv
//   chkCSS=1
//
// A folder that is relative is meant from the file's own; "~/" is the person's home.
inline constexpr std::string_view kSiteSection = "Site";
inline constexpr std::string_view kSiteTranslation = "Translation";    // display name or file stem
inline constexpr std::string_view kSiteBooks = "Books";                // as ChooseBooks takes them
inline constexpr std::string_view kSiteIndexAddress = "IndexAddress";  // as the form's txthttpRoot
inline constexpr std::string_view kSiteSitemap = "Sitemap";            // the address of the folder
inline constexpr std::string_view kSiteOnlyChosen = "OnlyChosen";      // "1": no page of the books after the ending one

// Why the file cannot be taken for a site's: it cannot be read, or holds nothing of one, or what no site has. Nothing
// when it can.
std::optional<Sentence> WhyNoSite(const std::string& path);

// The folder that the text of "Dir1" in the site's file at `path` means.
std::string FolderOfSite(const std::string& text, const std::string& path);

// What a site has chosen beside its options; an empty text is none.
struct SiteChoices {
  std::string translation;
  std::string books;
  std::string indexAddress;
  std::string sitemap;
  bool onlyChosen = false;
  bool bringsEncoding = false;  // the translation was imported: not in the file
};
SiteChoices ChoicesOfSite(const StoredSettings& store);

// Makes a site's file of choices and of every option, so that the site stays as it is whatever becomes of the person's
// own settings; but the charset and the language that an imported text brings stay with it. Throws RunTimeError, and
// what was in the file stands; so does what is no site's file, which is kBadFileName.
void SaveSite(const std::string& path, const SiteChoices& choices, const PageOptions& options,
              const StoredSettings& store);

}  // namespace folionet
