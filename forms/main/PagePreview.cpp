#include "PagePreview.h"

#include <QDir>
#include <QObject>
#include <QTemporaryDir>
#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <string>
#include <string_view>
#include <utility>

#include "Compile.h"
#include "Installation.h"
#include "MakeFolders.h"
#include "PageNames.h"
#include "Paths.h"
#include "QtText.h"
#include "RunTimeError.h"
#include "VerseFileReader.h"
#include "WholeFile.h"

namespace folionet {
namespace {

// Tells what goes wrong in a run, and nothing else.
class OnlyFailures : public UserInterface {
 public:
  explicit OnlyFailures(UserInterface& ui) : m_ui(ui) {}

  void ShowMessage(const Message& message) override {
    if (message.topic != Topic::kResult) m_ui.ShowMessage(message);
  }
  bool AskYesNo(const std::string& title, const std::string& text) override { return m_ui.AskYesNo(title, text); }
  std::optional<std::string> AskText(const InputBox& box) override { return m_ui.AskText(box); }
  void ShowErrorReport(const ErrorReport& report) override { m_ui.ShowErrorReport(report); }
  void SetPanel(int /*panel*/, std::string_view /*text*/) override {}
  void FocusControl(std::string_view name) override { m_ui.FocusControl(name); }

 private:
  UserInterface& m_ui;
};

// Writes the verses of a book's chapter 1 alone. False when the text has none.
bool WriteChapter(const std::string& from, int book, const std::string& to) {
  std::string chapter;
  VerseFileReader verses(from);
  while (verses.Next()) {
    const Verse& verse = verses.Current();
    if (verse.book != book || verse.chapter != 1) {
      if (!chapter.empty()) break;
      continue;
    }
    for (const std::string_view field : {verse.bookField, verse.chapterField, verse.verse, verse.text}) {
      chapter.append("\t").append(field);
    }
    chapter += "\r\n";
  }
  if (!chapter.empty()) ReplaceWholeFile(to, chapter);
  return !chapter.empty();
}

// A compile that lacks it ends the program, which a preview does not.
void RequireIndex(const CompileRequest& request, const ModGlob& glob) {
  const std::string& stem = glob.BibleFiles.at(static_cast<std::size_t>(request.cboBibleName));
  const std::string index = IndexFile(glob, CodePage(request.texts.PageCharset), stem);
  if (!FileExists(index)) throw RunTimeError::FromErrno(ENOENT, index).About(Subject::kChapterIndex);
}

// The picture lies beside the pages or below them; one that is not there is in no page either.
void CopyPicture(const CompileRequest& request, const std::string& folder) {
  const std::filesystem::path name = NativePath(request.options.frmBackground.txtImagepath);
  const bool isOutside = name.is_absolute() || std::find(name.begin(), name.end(), "..") != name.end();
  if (!request.options.chkBack || name.empty() || isOutside) return;
  const std::string to = folder + name.string();
  MakeFolderOf(to);
  std::remove(to.c_str());  // what follows tells of a failure
  if (const auto picture = ReadIfThere(request.txtOutputPath + name.string())) ReplaceWholeFile(to, *picture);
}

}  // namespace

PagePreview::PagePreview() = default;
PagePreview::~PagePreview() = default;

std::string PagePreview::Folder() {
  if (!m_folder || !QDir(m_folder->path()).exists()) {
    // Not Qt's own place, which is the root where the one that is named is not there.
    const QString named = qEnvironmentVariable("TMPDIR");
    const QString place = named.isEmpty() ? QStringLiteral("/tmp") : named;
    auto folder = std::make_unique<QTemporaryDir>(place + QStringLiteral("/folionet-XXXXXX"));
    if (!folder->isValid()) {
      throw RunTimeError(kPathFileAccessError, FromQt(place), FromQt(folder->errorString()));
    }
    m_folder = std::move(folder);
  }
  return FromQt(m_folder->path()) + "/";
}

void PagePreview::Show(CompileRequest request, const ModGlob& glob, UserInterface& ui) {
  std::string folder;
  const int book = request.cboStartBook + 1;
  try {
    folder = Folder();
    if (request.cboBibleName >= 0) {
      RequireIndex(request, glob);
      const std::string chapter = folder + "verses";
      if (!WriteChapter(request.txtFilename, book, chapter)) {
        ui.ShowMessage({MessageIcon::kInformation, FromQt(QObject::tr("Preview page")),
                        FromQt(QObject::tr("The translation has no chapter 1 of the starting book."))});
        return;
      }
      request.txtFilename = chapter;
    }
    CopyPicture(request, folder);
  } catch (const RunTimeError& error) {
    ui.ShowErrorReport({Procedure::kPreviewPage, error});
    return;
  }
  request.txtOutputPath = folder;
  request.options.txthttpRoot = request.options.chkUse83 ? "index.htm" : "index.html";
  request.cboEndBook = request.cboStartBook;
  ModGlob own = glob;  // a compile counts chapters anew
  OnlyFailures quiet(ui);
  if (cmdCompile_Click(request, own, quiet) != CompileOutcome::kDone) return;
  const PageNames names = PageNamesOf(request, own);
  ui.ShowPage(folder + names.OnDisk(book, 1));
}

}  // namespace folionet
