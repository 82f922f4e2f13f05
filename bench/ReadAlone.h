#pragma once

#include <string>

namespace folionet::bench {

// Reads an XML file through libxml2, piece by piece, and does nothing with what it tells. Gives the number of bytes of
// text; throws std::runtime_error for a file that is no XML.
std::size_t ReadXmlAlone(const std::string& path);

// As ReadXmlAlone, all files of an archive through libarchive.
std::size_t ReadArchiveAlone(const std::string& path);

// Makes a zip archive of one file.
void MakeZip(const std::string& path, const std::string& file);

}  // namespace folionet::bench
