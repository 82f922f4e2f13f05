#pragma once

// Names of files that more than one part of the program knows.

namespace folionet {

inline constexpr char kStyleSheetFile[] = "default.css";  // in the program folder, and in a site
inline constexpr char kSitemapFile[] = "sitemap.xml";     // in a site
inline constexpr char kLanguageList[] = "lang.txt";       // in the program folder, as the next
inline constexpr char kCharsetList[] = "enc.txt";
inline constexpr char kHeaderFile[] = "CustomHeader.txt";
inline constexpr char kFooterFile[] = "CustomFooter.txt";
inline constexpr char kCatalogueFile[] = "Translations.txt";  // in Versalia's folder Sysdefs, as the next
inline constexpr char kDefaultTitles[] = "BOOKS.TXT";
inline constexpr char kIndexFolder[] = "Index/";  // in Versalia's folder, and the end of its files' names
inline constexpr char kIndexEnding[] = ".TXT.INDEX";
inline constexpr char kVerseFolder[] = "Bible/";  // in its folder of modules
inline constexpr char kVerseEnding[] = ".TXT";

}  // namespace folionet
