#include "OutputFolder.h"

#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <string_view>
#include <system_error>

#include "ChapterNav.h"
#include "Numbers.h"
#include "PageFile.h"
#include "Paths.h"
#include "RunTimeError.h"
#include "WholeFile.h"

namespace folionet {
namespace {

constexpr char kStyleSheet[] = "default.css";

void Remove(const CompileRequest& request, const std::string& name) {
  const std::string path = NativePath(request.txtOutputPath) + name;
  const bool wasThere = request.dryRun ? FileExists(path) : unlink(path.c_str()) == 0;
  if (request.changes != nullptr) request.changes->Removed(name, wasThere);
}

bool IsFolderChosen(const CompileRequest& request) { return request.txtOutputPath != "txtOutputPath"; }

}  // namespace

void MakeOutputFolder(const CompileRequest& request) {
  if (!request.makeOutputFolder || !IsFolderChosen(request) || request.dryRun) return;
  const std::string folder = NativePath(request.txtOutputPath);
  if (FolderExists(folder)) return;
  std::error_code error;
  std::filesystem::create_directories(folder, error);
  if (!FolderExists(folder)) throw RunTimeError::FromErrno(error ? error.value() : ENOTDIR, folder);
}

FileHandle LockOutputFolder(const CompileRequest& request) {
  if (request.dryRun) return {};
  const std::string folder = NativePath(request.txtOutputPath);
  FileHandle handle = FileHandle::Open(folder.c_str(), O_RDONLY | O_DIRECTORY);
  // A file system that knows no locks is let pass; so is a folder that cannot be opened, which the first page tells.
  if (handle.IsOpen() && flock(handle.Get(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) {
    throw RunTimeError(kPermissionDenied, folder,
                       "Another compile is writing into this folder. Wait for it to end, or choose another folder.");
  }
  return handle;
}

void CopyCSS(const CompileRequest& request) {
  if (!IsFolderChosen(request)) return;
  const std::string source = request.programFolder + kStyleSheet;
  const std::string content = ReadWholeFile(source);
  MakeOutputFolder(request);
  const FileHandle lock = LockOutputFolder(request);
  const std::string target = NativePath(request.txtOutputPath) + kStyleSheet;
  std::error_code error;
  if (std::filesystem::equivalent(source, target, error) && !error) {
    throw RunTimeError(kFileAlreadyOpen, target, "The output folder is the program's own folder. Choose another one.");
  }
  WriteOtherFile(request, kStyleSheet, content + "\r\n");
}

void WriteOtherFile(const CompileRequest& request, const std::string& name, std::string_view bytes) {
  PageFile file;
  file.SetDryRun(request.dryRun);
  file.Open(request.txtOutputPath, name);
  file.Add(bytes);
  const PageChange change = file.Close();
  if (request.changes != nullptr) request.changes->Written(name, change);
}

std::int16_t CleanUp(const CompileRequest& request, const PageInputs& inputs) {
  int removed = 0;
  for (int book = 1; book <= request.cboStartBook; ++book) {
    const int chapters = ChaptersOf(inputs, book);
    for (int chapter = 1; chapter <= chapters; ++chapter) {
      const std::string name = inputs.names.OnDisk(book, chapter);
      if (IsPageName(name)) Remove(request, name);
      if (removed < kInt16Max) ++removed;
      inputs.ui.SetPanel(1, "Removing extra HTML .. " + name);
    }
  }
  return static_cast<std::int16_t>(removed);
}

}  // namespace folionet
