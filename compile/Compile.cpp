#include "Compile.h"

#include <algorithm>
#include <array>
#include <ctime>
#include <new>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "BuildInfo.h"
#include "ChapterNav.h"
#include "ChapterPage.h"
#include "EncodeOptions.h"
#include "FileNames.h"
#include "FolderFacts.h"
#include "IndexPage.h"
#include "LinkBack.h"
#include "Numbers.h"
#include "OutputFolder.h"
#include "PageNames.h"
#include "RunTimeError.h"
#include "Sitemap.h"
#include "Text.h"
#include "Utf8.h"
#include "Validation.h"
#include "VerseFileReader.h"

namespace folionet {
namespace {

// One compile run, from the first page to the counts.
class CompileRun {
 public:
  CompileRun(const CompileRequest& request, const CodePage& codePage, ModGlob& glob, UserInterface& ui,
             RunFolder& folder)
      : m_request(request),
        m_folder(folder),
        m_codePage(codePage),
        m_glob(glob),
        m_ui(ui),
        m_options(EncodePageOptions(request.options, codePage)),
        m_names(glob.cboStartBook, request.options.chkUse83, codePage),
        m_counts(glob),
        m_templates(m_options),
        m_inputs{m_options, m_glob, m_names, m_counts, m_linkToMain, m_indexFileName, m_templates, m_ui} {}

  // The link back, the colours and what else is fixed for the run. Throws AlreadyReported.
  void Prepare() {
    static_cast<PageTexts&>(m_context) = EncodePageTexts(m_request.texts, m_codePage);
    m_context.OutputFolder = m_request.txtOutputPath;
    m_context.PageFile.WriteInto(m_folder.site);
    if (m_glob.Imported.IsThere() && !EqualIgnoringCase(m_glob.Imported.charset, m_request.texts.PageCharset)) {
      m_textPage.emplace(m_glob.Imported.charset);
    }
    m_context.StyleSheetLink = R"(<link rel="STYLESHEET" type="text/css" href="default.css">)";
    const auto link = SetString(m_options, m_counts, m_ui);
    if (!link) throw AlreadyReported();
    m_context.BibleTitle = m_options.txtBibleSel;
    m_context.FontName = m_options.txtSample.FontName;
    m_context.BackColourHex = HtmlColour(m_options.txtSample.BackColor);
    m_context.TextColourHex = HtmlColour(m_options.txtSample.ForeColor);
    const double size = RoundHalfEven(m_options.txtSample.FontSize - 9);
    if (!(size >= kInt16Min && size <= kInt16Max)) {
      throw RunTimeError(kOverflow, "FontSize", std::to_string(m_options.txtSample.FontSize)).About(Subject::kSetting);
    }
    m_context.FontSizeNumber = static_cast<std::int16_t>(size);
    m_linkToMain = BuildLinkToMain(m_options, *link, m_context.FontSizeNumber, m_context.FontName);
    const auto [base, extension] = SplitIndexAddress(m_options.txthttpRoot, m_options.chkUse83);
    m_context.IndexBaseName = base;
    m_context.IndexExtension = extension;
    m_indexFileName = IndexFileName(m_codePage.Decode(m_context.IndexBaseName + "." + m_context.IndexExtension));
    if (m_options.chkUseNames) {
      for (std::size_t book = 1; book <= kBooks; ++book) m_labels[book] = m_codePage.ToUpper(m_glob.BookCodes[book]);
    }
  }

  // Writes the chapter pages. The first page is opened for the start book's chapter 1 before any line is read, whatever
  // the first line holds. After a failure, every page that was finished is on the disk.
  void WriteChapters() {
    try {
      WriteAllChapters();
    } catch (...) {
      try {
        WriteStartPage();
      } catch (const RunTimeError&) {
        // The first failure is the one to tell.
      }
      throw;
    }
  }
  void WriteIndex() {
    m_context.PageTitle = FillIndexTemplate(m_inputs, m_options.frmKeywords.txtDescriptionI);
    m_context.PageMeta = FillIndexTemplate(m_inputs, m_options.frmKeywords.txtKeywordsI);
    PageValues values = Values();
    // Its lines are those of the titles, which may be in another script than the text.
    const std::string title = m_codePage.Decode(m_glob.cboStartBook[static_cast<std::size_t>(m_request.cboStartBook)]);
    values.isRightToLeft = values.isRightToLeft && BeginsRightToLeft(title);
    WriteIndexPage({.values = values,
                    .firstBook = static_cast<std::int16_t>(m_request.cboStartBook + 1),
                    .lastBook = static_cast<std::int16_t>(m_request.cboEndBook + 1)},
                   m_inputs, m_codePage, m_context);
    Note(m_indexFileName, WritePageFoot(m_options, m_context));
    m_kept.push_back(m_indexFileName);
    if (!m_request.sitemapAddress.empty()) WriteSitemap();
  }

  void TellCounts() {
    const std::int16_t removed = CleanUp(m_request, m_inputs, m_kept, m_folder);
    m_ui.ShowMessage({MessageIcon::kInformation, std::string("Compilation Complete ") + kApplicationTitle,
                      "Compilation Complete!\r\n" + std::to_string(m_context.PagesCreated) +
                          " HTML pages created.\r\n" + std::to_string(removed) + " pages removed\r\nRemaining pages " +
                          std::to_string(m_context.PagesCreated - removed),
                      Topic::kResult});
  }

  // The last values seen, for the report of a failure.
  std::string LastValues() const {
    const Verse verse = !m_verses ? Verse() : m_isLeavingPage ? m_verses->LastOfPlaceBefore() : m_verses->Current();
    std::string place = Shown(verse.chapterField);
    if (!verse.verse.empty() || !place.empty()) place += ":" + Shown(verse.verse);
    return "INDEX: " + Shown(verse.bookField) + "\r\nSL: " + place + "\r\nSR: " + Shown(verse.text);
  }

 private:
  // A verse's text in the page's code page: an imported one may be in another.
  std::string_view PageBytes(std::string_view text) {
    if (!m_textPage) return text;
    m_pageText = m_codePage.Encode(m_textPage->Decode(text));
    return m_pageText;
  }

  void WriteAllChapters() {
    // A text that was imported may lack that page.
    const bool isImported = m_glob.Imported.IsThere();
    if (!isImported) OpenChapter(m_request.cboStartBook + 1, 1, "1");
    m_startName = m_context.PageFile.Name();
    m_verses.emplace(m_request.txtFilename);
    bool isFirst = true;
    int lastBook = 0;
    std::int16_t lastChapter = 0;
    const Verse& verse = m_verses->Current();
    while (m_verses->Next()) {
      if (isFirst || verse.chapter != lastChapter || verse.book != lastBook) {
        if (isFirst && isImported) {
          OpenChapter(verse.book, verse.chapter, verse.chapterField);
        } else if (isFirst) {
          m_holdsStartPage = !IsStartPage(verse.book, verse.chapter);
        } else {
          TurnPage(verse);
        }
        isFirst = false;
        lastBook = verse.book;
        lastChapter = verse.chapter;
      }
      BuildVerseLine(
          {m_labels[static_cast<std::size_t>(verse.book)], verse.chapterField, verse.verse, PageBytes(verse.text)},
          m_options, m_context);
    }
    ClosePage();
    WriteStartPage();
  }

  // A text of the verse file as a person can read it, whatever the file holds.
  std::string Shown(std::string_view text) const {
    constexpr std::size_t kShown = 200;
    return Escaped(m_codePage.DecodeForDisplay(text.substr(0, kShown)), "\t");
  }

  void TurnPage(const Verse& verse) {
    if (m_context.PagesCreated == kInt16Max) {
      throw RunTimeError(kOverflow, "More than 32767 pages.").About(Subject::kVerseFile);
    }
    ++m_context.PagesCreated;
    if (m_shownBook.empty() || verse.book != m_context.BookNumber)
      m_shownBook = m_codePage.DecodeForDisplay(BookName(m_inputs, verse.book));
    m_ui.SetPanel(1, "Compiling file " + std::to_string(m_context.PagesCreated) + " " + m_shownBook);
    m_isLeavingPage = true;
    ClosePage();
    m_isLeavingPage = false;
    OpenChapter(verse.book, verse.chapter, verse.chapterField);
  }

  bool IsStartPage(int book, std::int16_t chapter) const { return book == m_request.cboStartBook + 1 && chapter == 1; }

  // A start page that does not hold its own chapter is kept back: a later page of its name, as its own chapter's is,
  // takes its place, and a site that is compiled again is not touched by writing both.
  void ClosePage() {
    PrintPageFoot(m_options, m_context);
    if (std::exchange(m_holdsStartPage, false)) {
      m_startPage = m_context.PageFile.Take();
      return;
    }
    KeepPage(m_context.BookNumber, m_context.PageFile.Name());
    Note(m_context.PageFile.Name(), m_context.PageFile.Close());
    if (m_startPage && m_context.PageFile.Name() == m_startName) m_startPage.reset();
  }

  void WriteStartPage() {
    if (!m_startPage) return;
    m_context.PageFile.Open(m_context.OutputFolder, m_startName);
    m_context.PageFile.Add(*m_startPage);
    m_startPage.reset();
    KeepPage(m_request.cboStartBook + 1, m_startName);
    Note(m_startName, m_context.PageFile.Close());
  }

  // The pages of a book that stays are not deleted, whatever other book has their names too.
  void KeepPage(int book, const std::string& name) {
    const bool stays = book > m_request.cboStartBook && (!m_request.onlyChosen || book <= m_request.cboEndBook + 1);
    if (stays) m_kept.push_back(name);
  }

  // A page that is written is whole; only between two of them a run ends before its time.
  void Note(const std::string& name, PageChange change) {
    NoteWritten(m_request, m_folder, name, change);
    if (m_request.dryRun && change != PageChange::kSame) m_planned.insert(name);
    EndIfStopped(m_request);
  }

  // Of a plan, the pages that it would write are as of now.
  SitemapPage PageOfSitemap(std::string name) const {
    const std::time_t change = m_planned.contains(name) ? std::time(nullptr) : m_folder.site.LastChange(name);
    return {std::move(name), change};
  }

  void WriteSitemap() const {
    std::vector<SitemapPage> pages{PageOfSitemap(m_indexFileName)};
    for (int book = m_request.cboStartBook + 1; book <= m_request.cboEndBook + 1; ++book) {
      ForEachChapter(m_glob, book, ChaptersOf(m_inputs, book), [&](int chapter) {
        std::string name = m_names.OnDisk(book, chapter);
        if (name != m_indexFileName) pages.push_back(PageOfSitemap(std::move(name)));
      });
    }
    WriteOtherFile(m_request, m_folder, kSitemapFile, BuildSitemap(m_request.sitemapAddress, pages));
  }

  void OpenChapter(int book, std::int16_t chapter, std::string_view chapterText) {
    m_context.BookNumber = static_cast<std::int16_t>(book);
    m_context.ChapterNumber = chapter;
    m_context.BookTitle = BookName(m_inputs, book);
    m_context.PageTitle = FillTemplate(m_inputs, m_templates.description, m_context.BookTitle, chapterText);
    m_context.PageMeta = FillTemplate(m_inputs, m_templates.keywords, m_context.BookTitle, chapterText);
    WriteChapterHead({.bookName = m_context.BookTitle,
                      .values = Values(),
                      .bookNumber = m_context.BookNumber,
                      .chapterNumber = m_context.ChapterNumber},
                     m_inputs, m_context);
  }

  PageValues Values() const {
    return {.language = m_context.PageLanguage,
            .charset = m_context.PageCharset,
            .isRightToLeft = m_glob.Imported.direction == "rtl",
            .fontFace = m_context.FontName,
            .fontSize = m_context.FontSizeNumber,
            .backColour = m_context.BackColourHex,
            .textColour = m_context.TextColourHex,
            .keywords = m_context.PageMeta,
            .description = m_context.PageTitle};
  }

  const CompileRequest& m_request;
  RunFolder& m_folder;
  const CodePage& m_codePage;
  ModGlob& m_glob;
  UserInterface& m_ui;
  PageOptions m_options;
  std::string m_indexFileName;  // UTF-8; empty before Prepare
  PageNames m_names;
  VerseCounts m_counts;
  std::string m_linkToMain;
  ChapterTemplates m_templates;
  PageInputs m_inputs;
  CompileContext m_context;
  std::array<std::string, kBooks + 1> m_labels;
  std::optional<CodePage> m_textPage;  // of a text that is not in the page's
  std::string m_pageText;
  std::string m_shownBook;                  // the title of the page's book, as the status bar shows it
  std::optional<VerseFileReader> m_verses;  // outlives a failure, whose report shows the verse at hand
  bool m_holdsStartPage = false;
  std::optional<std::string> m_startPage;
  std::string m_startName;
  bool m_isLeavingPage = false;     // the verse at hand is of the page that comes
  std::set<std::string> m_planned;  // the pages that a plan would write
  std::vector<std::string> m_kept;  // what the clean-up leaves, some names twice
};

// A failure of the run, with the last values seen.
struct RunFailure {
  RunTimeError error;
  std::string lastValues;
};

// Throws RunFailure, and RunTimeError before there are values.
CompileOutcome Run(const CompileRequest& request, ModGlob& glob, UserInterface& ui, RunFolder& folder) {
  // They are listed where a link makes it matter.
  folder.site.SetFilesOfRun([&request, &glob, files = WrittenFiles()](const std::string& name) mutable {
    if (files.empty()) files = FilesOfSite(request, glob);
    return files.contains(name);
  });
  if (request.options.chkCSS) CopyCSS(request, folder);
  if (const auto refusal = Validate(request)) {
    ui.ShowMessage(refusal->message);
    ui.FocusControl(refusal->control);
    return CompileOutcome::kRefused;
  }
  if (request.cboBibleName < 0) {
    ui.ShowMessage({MessageIcon::kInformation, "No Bible Selected", "Please Select a Bible to compile first",
                    Topic::kNoReadableText});
    return CompileOutcome::kRefused;
  }
  const CodePage codePage(request.texts.PageCharset);
  const Outcome counted = BooksInChapters(glob, static_cast<std::size_t>(request.cboBibleName), codePage, ui);
  if (counted != Outcome::kDone) {
    return counted == Outcome::kEndProgram ? CompileOutcome::kEndProgram : CompileOutcome::kFailed;
  }
  CompileRun run(request, codePage, glob, ui, folder);
  try {
    run.Prepare();
    OpenOutputFolder(request, folder);
    run.WriteChapters();
    run.WriteIndex();
  } catch (const RunTimeError& error) {
    throw RunFailure{error, run.LastValues()};
  }
  run.TellCounts();
  return CompileOutcome::kDone;
}

}  // namespace

CompileOutcome cmdCompile_Click(const CompileRequest& request, ModGlob& glob, UserInterface& ui) {
  constexpr char kNoValues[] = "INDEX: \r\nSL: \r\nSR: ";
  RunFolder folder;
  CompileOutcome outcome = CompileOutcome::kFailed;
  try {
    outcome = Run(request, glob, ui, folder);
  } catch (const Stopped&) {
    outcome = CompileOutcome::kStopped;
  } catch (const RunFailure& failure) {
    ui.ShowErrorReport({Procedure::kCompile, failure.error, failure.lastValues + "\r\n"});
  } catch (const RunTimeError& error) {
    ui.ShowErrorReport({Procedure::kCompile, error, std::string(kNoValues) + "\r\n"});
  } catch (const AlreadyReported&) {
    outcome = CompileOutcome::kFailed;  // and has been told
  } catch (const std::bad_alloc&) {
    ui.ShowErrorReport({Procedure::kCompile, kOutOfMemory, kNoValues});
  }
  EndRun(request, folder);
  if (outcome == CompileOutcome::kDone) ForgetChanges(request, folder);
  return outcome;
}

}  // namespace folionet
