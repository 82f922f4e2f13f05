#include "LibraryFiles.h"

#include <QFile>
#include <QSaveFile>
#include <QString>
#include <system_error>

#include "Ascii.h"
#include "LibraryError.h"

namespace folionet::tools {

namespace fs = std::filesystem;

namespace {

[[noreturn]] void FailAt(const fs::path& path, const std::string& action, const QString& reason) {
  throw LibraryError(path.string() + ": cannot " + action + ": " + reason.toStdString());
}

}  // namespace

bool IsThere(const fs::path& path) {
  std::error_code error;
  return fs::exists(path, error);
}

fs::path Within(const fs::path& folder, const std::string& name) {
  if (IsThere(folder / name)) return folder / name;
  std::error_code error;
  fs::path found = folder / name;
  bool any = false;
  for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
    const fs::path& path = entry->path();
    // Of several spellings the first by name, whatever the order of the folder.
    if (SameIgnoringCase(path.filename().string(), name) && (!any || path < found)) {
      found = path;
      any = true;
    }
  }
  return found;
}

std::string ReadWholeFile(const fs::path& path) {
  QFile file(QString::fromStdString(path.string()));
  if (!file.open(QIODevice::ReadOnly)) FailAt(path, "open it", file.errorString());
  const QByteArray content = file.readAll();
  if (file.error() != QFileDevice::NoError) FailAt(path, "read it", file.errorString());
  return content.toStdString();
}

void MakeFolder(const fs::path& path) {
  std::error_code error;
  fs::create_directories(path, error);
  if (error) FailAt(path, "make the folder", QString::fromStdString(error.message()));
}

void WriteWholeFile(const fs::path& path, std::string_view content) {
  QSaveFile file(QString::fromStdString(path.string()));
  if (!file.open(QIODevice::WriteOnly)) FailAt(path, "open it for writing", file.errorString());
  // A disk that fills up cuts a write short without a word; only the next write tells the reason.
  while (!content.empty()) {
    const qint64 written = file.write(content.data(), static_cast<qint64>(content.size()));
    if (written <= 0) FailAt(path, "write it", file.errorString());
    content.remove_prefix(static_cast<std::size_t>(written));
  }
  if (!file.commit()) FailAt(path, "finish writing it", file.errorString());
}

}  // namespace folionet::tools
