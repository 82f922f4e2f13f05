#include "ReadAlone.h"

#include <libxml/parser.h>

#include <array>
#include <fstream>
#include <new>
#include <stdexcept>

namespace folionet::bench {

std::size_t ReadXmlAlone(const std::string& path) {
  std::size_t length = 0;
  xmlSAXHandler sax{};
  sax.initialized = XML_SAX2_MAGIC;
  sax.startElementNs = [](auto...) {};
  sax.endElementNs = [](auto...) {};
  sax.characters = [](void* sum, const xmlChar* /*text*/, int count) {
    *static_cast<std::size_t*>(sum) += static_cast<std::size_t>(count);
  };
  xmlParserCtxt* const context = xmlCreatePushParserCtxt(&sax, &length, nullptr, 0, nullptr);
  if (context == nullptr) throw std::bad_alloc();
  std::ifstream file(path, std::ios::binary);
  std::array<char, 65536> piece{};
  int error = 0;
  while (error == 0 && file) {
    file.read(piece.data(), static_cast<std::streamsize>(piece.size()));
    error = xmlParseChunk(context, piece.data(), static_cast<int>(file.gcount()), file ? 0 : 1);
  }
  xmlFreeParserCtxt(context);
  if (error != 0) throw std::runtime_error("cannot read " + path);
  return length;
}

}  // namespace folionet::bench
