#include <gtest/gtest.h>

#include <functional>

#include "Compile.h"
#include "OutputFolder.h"
#include "RecordingUi.h"
#include "RunTimeError.h"
#include "TemporaryFolder.h"
#include "Validation.h"

namespace folionet {
namespace {

using Texts = std::vector<std::string>;

CompileRequest GoodRequest() {
  CompileRequest request;
  request.txtOutputPath = "/out/";
  request.options.txtBibleSel = "KJV";
  request.options.txthttpRoot = "index.html";
  request.cboLang = "BOOKS.TXT";
  return request;
}

// Each row also breaks everything that the rows above break, so that the order shows.
TEST(ValidationTest, RefusesInTheFormsOrder) {
  const struct {
    std::function<void(CompileRequest&)> mend;
    const char* said;
    const char* control;
  } steps[] = {
      {[](auto&) {}, "No Path: No Output path Selected.", "Dir1"},
      {[](auto& r) { r.txtOutputPath = "/out/"; }, "No Bible: No Bible Selected.", "cboBibleName"},
      {[](auto& r) { r.options.txtBibleSel = "KJV"; }, "No HTTP Root: No HTTP root has been entered.", "txthttpRoot"},
      {[](auto& r) { r.options.txthttpRoot = "index.htm"; },
       "Language not selected: Please select a language for the Book Titles first", "cboLang"},
      {[](auto& r) { r.cboLang = "BOOKS.TXT"; },
       "Not a valid long file extension: \"htm\" is not a valid long filename extension. It must be \"html\"\r\n"
       "Please correct and try again.",
       "txthttpRoot"},
      {[](auto& r) { r.options.txthttpRoot = "index.html"; },
       "No Bible Selected: Please Select a Bible to compile first", "txthttpRoot"},
  };
  CompileRequest request;
  request.cboLang = "Default";
  ModGlob glob;
  test::RecordingUi ui;
  for (const auto& step : steps) {
    step.mend(request);
    ui.said.clear();
    EXPECT_EQ(cmdCompile_Click(request, glob, ui), CompileOutcome::kRefused);
    EXPECT_EQ(ui.said, Texts{step.said});
    EXPECT_EQ(ui.focused, step.control);
  }
}

TEST(ValidationTest, TakesTheAddressesOfItsNames) {
  const auto shortNames = [](const char* base, const char* extension) {
    return std::string("8.3 filename error: Either \"") + base + "\" is an illegal 8.3 filename or \r\n\"" + extension +
           "\" is. Please correct.";
  };
  const auto longNames = [](const char* extension) {
    return std::string("Not a valid long file extension: \"") + extension +
           "\" is not a valid long filename extension. It must be \"html\"\r\nPlease correct and try again.";
  };
  const struct {
    bool use83;
    const char* address;
    std::string said;
  } cases[] = {
      {false, "index.html", ""},
      {false, "https://a.b/c/index.html", ""},
      {false, "index.HTML", longNames("HTML")},
      {false, "a.b/index", longNames("b/index")},
      {false, ".", longNames("")},
      {true, "index.htm", ""},
      {true, "https://a.b/c/index.htm", ""},
      {true, "welcome1.htm", ""},
      {true, "welcome01.htm", shortNames("welcome01", "htm")},
      {true, "index.HTM", shortNames("index", "HTM")},
      {true, "a/b.html", shortNames("b", "html")},
  };
  for (const auto& c : cases) {
    CompileRequest request = GoodRequest();
    request.options.chkUse83 = c.use83;
    request.options.txthttpRoot = c.address;
    const auto refusal = Validate(request);
    EXPECT_EQ(refusal ? refusal->message.title + ": " + refusal->message.text : "", c.said) << c.address;
  }
}

TEST(ValidationTest, AnAddressWithoutADotIsAFailureOfTheRun) {
  CompileRequest request = GoodRequest();
  request.options.txthttpRoot = "index";
  ModGlob glob;
  test::RecordingUi ui;
  EXPECT_EQ(cmdCompile_Click(request, glob, ui), CompileOutcome::kFailed);
  EXPECT_EQ(ui.said, Texts{"5 cmdCompile_Click: INDEX: \r\nSL: \r\nSR: \r\nindex\r\n"
                           "The address of the index page has no \".\". Enter one such as index.html."});
}

TEST(CopyCssTest, CopiesWithOneLineBreakMoreAndOnlyWhereAFolderIsChosen) {
  const test::TemporaryFolder folder;
  folder.Write("program/default.css", "h1 {}");
  CompileRequest request = GoodRequest();
  request.programFolder = folder.Path() + "program/";
  request.txtOutputPath = "txtOutputPath";
  CopyCSS(request);
  EXPECT_FALSE(std::filesystem::exists("txtOutputPathdefault.css"));
  request.txtOutputPath = folder.Path() + "deep/out/";
  EXPECT_THROW(CopyCSS(request), RunTimeError);
  request.makeOutputFolder = true;
  CopyCSS(request);
  EXPECT_EQ(folder.Read("deep/out/default.css"), "h1 {}\r\n");
  request.txtOutputPath = request.programFolder;
  try {
    CopyCSS(request);
    ADD_FAILURE() << "the style sheet was copied onto itself";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.Number(), kFileAlreadyOpen);
  }
  EXPECT_EQ(folder.Read("program/default.css"), "h1 {}");
}

}  // namespace
}  // namespace folionet
