#include "OutputFolder.h"

#include <unistd.h>

#include <filesystem>
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

bool IsFolderChosen(const CompileRequest& request) { return request.txtOutputPath != "txtOutputPath"; }

}  // namespace

void MakeOutputFolder(const CompileRequest& request) {
  if (!request.makeOutputFolder || !IsFolderChosen(request)) return;
  const std::string folder = NativePath(request.txtOutputPath);
  if (FolderExists(folder)) return;
  std::error_code error;
  std::filesystem::create_directories(folder, error);
  if (!FolderExists(folder)) throw RunTimeError::FromErrno(error ? error.value() : ENOTDIR, folder);
}

void CopyCSS(const CompileRequest& request) {
  if (!IsFolderChosen(request)) return;
  const std::string source = request.programFolder + kStyleSheet;
  const std::string content = ReadWholeFile(source);
  MakeOutputFolder(request);
  const std::string target = NativePath(request.txtOutputPath) + kStyleSheet;
  std::error_code error;
  if (std::filesystem::equivalent(source, target, error) && !error) {
    throw RunTimeError(kFileAlreadyOpen, target, "The output folder is the program's own folder.");
  }
  PageFile copy;
  copy.Open(request.txtOutputPath, kStyleSheet);
  copy.Print(content);
  copy.Close();
}

std::int16_t CleanUp(const CompileRequest& request, const PageInputs& inputs) {
  int removed = 0;
  for (int book = 1; book <= request.cboStartBook; ++book) {
    const int chapters = ChaptersOf(inputs, book);
    for (int chapter = 1; chapter <= chapters; ++chapter) {
      const std::string name = inputs.names.OnDisk(book, chapter);
      if (IsPageName(name)) unlink((NativePath(request.txtOutputPath) + name).c_str());
      if (removed < kInt16Max) ++removed;
      inputs.ui.SetPanel(1, "Removing extra HTML .. " + name);
    }
  }
  return static_cast<std::int16_t>(removed);
}

}  // namespace folionet
