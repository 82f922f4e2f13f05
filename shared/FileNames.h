#pragma once

// Names of files that more than one part of the program knows.

namespace folionet {

inline constexpr char kStyleSheetFile[] = "default.css";  // in the program folder, and in a site
inline constexpr char kSitemapFile[] = "sitemap.xml";     // in a site
inline constexpr char kLanguageList[] = "lang.txt";       // in the program folder, as the next
inline constexpr char kCharsetList[] = "enc.txt";
inline constexpr char kCatalogueFile[] = "Translations.txt";  // in Versalia's folder Sysdefs, as the next
inline constexpr char kDefaultTitles[] = "BOOKS.TXT";

}  // namespace folionet
