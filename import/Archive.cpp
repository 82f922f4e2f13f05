#include "Archive.h"

#include <archive.h>
#include <archive_entry.h>

#include <algorithm>
#include <array>
#include <exception>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "ImportError.h"
#include "LateLibrary.h"
#include "LineReader.h"
#include "Text.h"

namespace folionet {
namespace {

constexpr std::size_t kMostBytes = std::size_t{512} << 20;
constexpr int kMostEntries = 10000;

// The routines of libarchive that are used.
struct ArchiveLibrary {
  ArchiveLibrary() {
    const LateLibrary library(FOLIONET_LIBARCHIVE, "archives");
    library.Find(newReader, "archive_read_new");
    library.Find(freeReader, "archive_read_free");
    library.Find(open, "archive_read_open");
    library.Find(nextHeader, "archive_read_next_header");
    library.Find(readData, "archive_read_data");
    library.Find(format, "archive_format");
    library.Find(errorText, "archive_error_string");
    library.Find(pathname, "archive_entry_pathname");
    library.Find(pathnameUtf8, "archive_entry_pathname_utf8");
    library.Find(filetype, "archive_entry_filetype");
    for (const char* const name :
         {"archive_read_support_filter_gzip", "archive_read_support_filter_bzip2", "archive_read_support_filter_xz",
          "archive_read_support_filter_zstd", "archive_read_support_format_zip_streamable",
          "archive_read_support_format_tar", "archive_read_support_format_raw"}) {
      supports.push_back(nullptr);
      library.Find(supports.back(), name);
    }
  }

  decltype(archive_read_new)* newReader = nullptr;
  decltype(archive_read_free)* freeReader = nullptr;
  decltype(archive_read_open)* open = nullptr;
  decltype(archive_read_next_header)* nextHeader = nullptr;
  decltype(archive_read_data)* readData = nullptr;
  decltype(archive_format)* format = nullptr;
  decltype(archive_error_string)* errorText = nullptr;
  decltype(archive_entry_pathname)* pathname = nullptr;
  decltype(archive_entry_pathname_utf8)* pathnameUtf8 = nullptr;
  decltype(archive_entry_filetype)* filetype = nullptr;
  std::vector<decltype(archive_read_support_format_raw)*> supports;
};

const ArchiveLibrary& Library() {
  static const ArchiveLibrary library;
  return library;
}

bool LeadsOut(std::string_view path) {
  if (path.starts_with('/') || path.starts_with('\\') || path.substr(0, 2).ends_with(':')) return true;
  while (!path.empty()) {
    const std::size_t end = std::min(path.find_first_of("/\\"), path.size());
    if (path.substr(0, end) == "..") return true;
    path.remove_prefix(std::min(end + 1, path.size()));
  }
  return false;
}

// An archive that is being read. The file that is read from it at a time is itself the source of its bytes.
class ArchiveReader : public ByteSource {
 public:
  ArchiveReader(std::string file, ByteSource& bytes)
      : m_file(std::move(file)), m_bytes(bytes), m_archive(Library().newReader(), Library().freeReader) {
    for (const auto& support : Library().supports) support(m_archive.get());
    Check(Library().open(m_archive.get(), this, nullptr, OnRead, nullptr));
  }

  // Goes on to the next file and gives its name; nothing at the end.
  std::optional<std::string> Next() {
    archive_entry* entry = nullptr;
    for (;;) {
      const int status = Library().nextHeader(m_archive.get(), &entry);
      if (status == ARCHIVE_EOF) return std::nullopt;
      Check(status);
      const char* path = Library().pathnameUtf8(entry);
      if (path == nullptr) path = Library().pathname(entry);
      const std::string name = path != nullptr ? path : "";
      if (LeadsOut(name)) Fail({Words("Import", "Paths that stay in the archive were expected: %1"), {Quoted(name)}});
      if (++m_entries > kMostEntries)
        Fail({Words("Import", "At most %1 files were expected."), {std::to_string(kMostEntries)}});
      if (Library().filetype(entry) == AE_IFREG || Library().filetype(entry) == 0) return name;
    }
  }

  // Whether it is no archive but a file that is only compressed, which has no name of its own.
  bool IsAlone() const { return Library().format(m_archive.get()) == ARCHIVE_FORMAT_RAW; }

  std::size_t Read(char* bytes, std::size_t size) override {
    const la_ssize_t count = Library().readData(m_archive.get(), bytes, size);
    if (count < 0) Unsound();  // a warning too tells that there are no bytes
    m_unpacked += static_cast<std::size_t>(count);
    if (m_unpacked > kMostBytes) Fail({Words("Import", "An archive that unpacks into at most 512 MiB was expected.")});
    return static_cast<std::size_t>(count);
  }

 private:
  [[noreturn]] void Fail(Sentence what) const { throw ImportError(kPathFileAccessError, m_file, std::move(what)); }

  void Check(int status) {
    if (status < ARCHIVE_WARN || m_thrown) Unsound();
  }

  [[noreturn]] void Unsound() {
    if (m_thrown) std::rethrow_exception(std::exchange(m_thrown, nullptr));
    const char* const text = Library().errorText(m_archive.get());
    if (text == nullptr) Fail({Words("Import", "A sound archive was expected.")});
    Fail({Words("Import", "A sound archive was expected: %1"), {text}});
  }

  static la_ssize_t OnRead(archive* /*archive*/, void* self, const void** bytes) {
    ArchiveReader& reader = *static_cast<ArchiveReader*>(self);
    *bytes = reader.m_buffer.data();
    try {
      return static_cast<la_ssize_t>(reader.m_bytes.Read(reader.m_buffer.data(), reader.m_buffer.size()));
    } catch (...) {
      reader.m_thrown = std::current_exception();
      return ARCHIVE_FATAL;
    }
  }

  std::string m_file;
  ByteSource& m_bytes;
  std::vector<char> m_buffer = std::vector<char>(std::size_t{64} << 10);
  std::exception_ptr m_thrown;  // no exception may pass through the library
  int m_entries = 0;
  std::size_t m_unpacked = 0;
  std::unique_ptr<archive, decltype(archive_read_free)*> m_archive;
};

}  // namespace

bool IsArchive(std::string_view head) {
  constexpr std::size_t kTarMagicAt = 257;
  constexpr std::array<std::string_view, 6> kMagics{"PK\x03\x04",
                                                    "PK\x05\x06",
                                                    "\xFD"
                                                    "7zXZ",
                                                    "\x1F\x8B",
                                                    "BZh",
                                                    "\x28\xB5\x2F\xFD"};
  for (const std::string_view magic : kMagics) {
    if (head.starts_with(magic)) return true;
  }
  return head.size() > kTarMagicAt && head.substr(kTarMagicAt).starts_with("ustar");
}

void ForEachEntry(const std::string& file, ByteSource& bytes, const std::function<void(const InputFile&)>& take) {
  ArchiveReader reader(file, bytes);
  while (true) {
    const std::optional<std::string> name = reader.Next();
    if (!name) return;
    const bool isAlone = reader.IsAlone();
    std::string shown = file;
    if (!isAlone) shown.append(": ").append(*name);
    take({shown, isAlone, &reader});
  }
}

}  // namespace folionet
