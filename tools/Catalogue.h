#pragma once

#include <string>
#include <string_view>

// Versalia's catalogue of translations, Sysdefs/Translations.txt: one record a line, four fields separated by commas:
// number, a number that is 0 here, display name, file stem. Texts may stand in double quotes, a quote inside them is
// written twice. Numbers from 1000 on belong to records that are no translations.
//
//   1,0,"King James Version","KJV"

namespace folionet::tools {

// `content`, the bytes of the catalogue `file` (empty when there is none yet), with a record for the translation. The
// record of the same stem, in any case, keeps its place and its numbers; a new one comes last, under the lowest free
// number. Every other record stays byte for byte. `name` and `stem` are windows-1252. Throws LibraryError for a record
// that cannot be read, so that nothing is lost of a catalogue that is not understood, and when every number below 1000
// is taken.
std::string WithTranslation(std::string_view content, const std::string& file, std::string_view name,
                            std::string_view stem);

}  // namespace folionet::tools
