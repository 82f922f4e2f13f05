#include "LibraryWriter.h"

#include <fcntl.h>

#include <filesystem>

#include "BookTable.h"
#include "FileHandle.h"
#include "FileLock.h"
#include "ImportError.h"
#include "JointChange.h"
#include "Replacement.h"
#include "StoredSettings.h"
#include "WholeFile.h"

namespace folionet {

std::string WriteVerses(const ImportedBible& bible, const LibraryPlan& plan,
                        const std::function<void(std::string_view piece)>& take) {
  std::string index;
  std::string lines;  // of a chapter, in UTF-8
  std::size_t offset = 0;
  int chapters = 0;
  for (const auto& [book, chapter, first, end] : bible.Chapters()) {
    lines.clear();
    const std::string place = "\t" + std::to_string(book) + "\t" + std::to_string(chapter) + "\t";
    for (std::size_t i = first; i < end; ++i) {
      const ImportedBible::Verse verse = bible.VerseAt(i);
      lines.append(std::to_string(i + 1)).append(place).append(verse.field).append("\t");
      lines.append(verse.text).append("\r\n");
    }
    if (plan.text.charset != "utf-8") lines = Encoded(plan, lines);
    take(lines);
    index.append(std::to_string(++chapters)).append(",").append(std::to_string(offset)).append(",");
    index.append(std::to_string(book)).append(",").append(std::to_string(chapter)).append(",");
    index.append(std::to_string(end - first)).append(",").append(std::to_string(lines.size()));
    index.append(",\"").append(BookLabel(book)).append("\"\r\n");
    offset += lines.size();
  }
  return index;
}

namespace {

namespace fs = std::filesystem;

// Where the change is noted: with the person's settings, as every start looks there; where they have none, in the
// library, where nobody completes it.
std::string NotePath(const std::string& sysdefs, Doing doing) {
  const StoredSettings settings(StoredSettings::DefaultFolder());
  if (StoredSettings::DefaultFolder().empty()) return sysdefs + "/.import";
  MakeFolders(StoredSettings::DefaultFolder(), doing);
  return settings.ImportNote();
}

void MakeFoldersOf(const LibraryPlan& plan, Doing doing) {
  MakeFolders(fs::path(plan.library.IndexFile(plan.stem)).parent_path().string(), doing);
  for (const auto& [path, content] : plan.files) MakeFolders(fs::path(path).parent_path().string(), doing);
}

// Keeps the library for this import alone, or asks whether that could be done.
FileHandle TakeLibrary(const LibraryPlan& plan, Doing doing) {
  MakeFoldersOf(plan, doing);
  FileHandle lock = FileHandle::Open(fs::path(plan.catalogue).parent_path().c_str(), O_RDONLY | O_DIRECTORY);
  const bool isHeld = lock.IsOpen() && (doing == Doing::kPlan ? IsLockHeld(lock.Get(), kLongestWait)
                                                              : !LockFile(lock.Get(), kLongestWait));
  if (!isHeld) return lock;
  throw ImportError(
      kPermissionDenied, plan.library.Folder(),
      {Words("Import", "Another import is writing into this library: %1. Import again when it has ended."),
       {LockHolderName(lock.Get())}});
}

bool HasCatalogueOf(const LibraryPlan& plan) {
  return ReadIfThere(plan.catalogue).value_or("") == plan.catalogueBefore;
}

[[noreturn]] void FailChanged(const LibraryPlan& plan) {
  throw ImportError(kPermissionDenied, plan.library.Folder(),
                    {Words("Import", "Another program has changed this library. Import again.")});
}

void CarryOut(const ImportedBible& bible, const LibraryPlan& plan, Doing doing) {
  const std::string note = NotePath(fs::path(plan.catalogue).parent_path().string(), doing);
  const std::string indexFile = plan.library.IndexFile(plan.stem);
  if (doing == Doing::kPlan) {
    TryReplacement(note);
    for (const std::string& path : {plan.verseFile, indexFile}) TryReplacement(path);
    for (const auto& [path, content] : plan.files) TryReplacement(path);
    return;
  }
  JointChange change(note);
  std::string index;
  change.Write(plan.verseFile, [&](const JointChange::Pieces& take) { index = WriteVerses(bible, plan, take); });
  change.Replace(indexFile, index);
  for (const auto& [path, content] : plan.files) change.Replace(path, content);
  // Versalia, or an editor, may have added to it meanwhile.
  if (!HasCatalogueOf(plan)) FailChanged(plan);
  change.Commit();
}

}  // namespace

void WriteLibrary(const ImportedBible& bible, const LibraryPlan& plan) {
  const FileHandle lock = TakeLibrary(plan, Doing::kChange);
  if (!HasCatalogueOf(plan)) FailChanged(plan);
  CarryOut(bible, plan, Doing::kChange);
}

LibraryPlan ImportLibrary(const ImportedBible& bible, const LibraryRequest& request, Doing doing) {
  LibraryPlan plan = PlanLibrary(bible, request);
  const FileHandle lock = TakeLibrary(plan, doing);
  if (!HasCatalogueOf(plan)) {
    plan = PlanLibrary(bible, request);
    MakeFoldersOf(plan, doing);
  }
  CarryOut(bible, plan, doing);
  return plan;
}

}  // namespace folionet
