#include "ReadAlone.h"

#include <archive.h>
#include <archive_entry.h>
#include <libxml/parser.h>

#include <array>
#include <fstream>
#include <iterator>
#include <memory>
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

std::size_t ReadArchiveAlone(const std::string& path) {
  const std::unique_ptr<archive, decltype(&archive_read_free)> reader(archive_read_new(), &archive_read_free);
  archive_read_support_format_zip(reader.get());
  if (archive_read_open_filename(reader.get(), path.c_str(), 65536) != ARCHIVE_OK) {
    throw std::runtime_error("cannot read " + path);
  }
  std::size_t length = 0;
  std::array<char, 65536> piece{};
  for (archive_entry* entry = nullptr; archive_read_next_header(reader.get(), &entry) == ARCHIVE_OK;) {
    for (la_ssize_t count = 0; (count = archive_read_data(reader.get(), piece.data(), piece.size())) > 0;) {
      length += static_cast<std::size_t>(count);
    }
  }
  return length;
}

void MakeZip(const std::string& path, const std::string& file) {
  std::ifstream stream(file, std::ios::binary);
  const std::string bytes{std::istreambuf_iterator<char>(stream), {}};
  const std::unique_ptr<archive, decltype(&archive_write_free)> writer(archive_write_new(), &archive_write_free);
  const std::unique_ptr<archive_entry, decltype(&archive_entry_free)> entry(archive_entry_new(), &archive_entry_free);
  archive_entry_set_pathname(entry.get(), "text");
  archive_entry_set_filetype(entry.get(), AE_IFREG);
  archive_entry_set_size(entry.get(), static_cast<la_int64_t>(bytes.size()));
  const bool isMade =
      archive_write_set_format_zip(writer.get()) == ARCHIVE_OK &&
      archive_write_open_filename(writer.get(), path.c_str()) == ARCHIVE_OK &&
      archive_write_header(writer.get(), entry.get()) == ARCHIVE_OK &&
      archive_write_data(writer.get(), bytes.data(), bytes.size()) == static_cast<la_ssize_t>(bytes.size()) &&
      archive_write_close(writer.get()) == ARCHIVE_OK;
  if (!isMade) throw std::runtime_error("cannot write " + path);
}

}  // namespace folionet::bench
