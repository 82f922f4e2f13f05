// Runs the programs, and the forms, as the files *.runs of this folder say, and compares all that they print, show and
// change. A case has a folder of its own; one that starts the form has the library of forms/FormTest.h, any other a
// small one in installation/ and a style sheet in program/:
//
//   = the case's name
//   library sixty-six                     another library than the small one: 66 books, or "none"
//   install                               copies the form's program to bin/folionet, with nothing beside it
//   write FILE TEXT [N TEXT]...           the text, then others N times each; "append" leaves what the file holds
//   replace FILE OLD NEW                  also: remove PATH..., rename PATH PATH, folder PATH, pipe PATH,
//                                         link PATH TARGET, hardlink PATH TARGET,
//                                         dated FILE 2001-02-03, which was its last change
//   $ site --start-book=2                 compiles the library into out/, "compile" to what is given; "cli"
//                                         and "folionet" are the programs; before one, "bounded" bounds its
//                                         memory and time, "limited" the size of its files, "fed" gives it
//                                         the file in as standard input, "terminal" a terminal, LANG=de
//                                         sets its environment
//   $3 site                               with the exit status, when it is not 0
//   | a line of standard output           ! a line of standard error
//   + a file made outside out/            ~ a file changed there          - a file that is gone
//   show FILE                             prints a file; find FILE TEXT the lines with a text; list FOLDER the files
//   absent FILE                           that is not there
//
// and in the forms (runs in forms_test; forms/FormRunsTest.cpp has the rest of the words):
//
//   store chkCSS 1                        a setting, before a start
//   site FILE                             a site's file, for the next start, or none
//   start                                 or "start fails", when the program must end
//   click cmdEffects chkBack              one or more controls, named as in FormTest.h
//   give frmEffects.cmdActive 255         types, picks or chooses
//   answer yes                            to the question to come
//   compiles                              with success; "exits" with everything saved
//   > Confirm Exit?: All settings ...     a box that came: title or report, and text
//   panels                                the texts of a run in the status bar
//   shows =BodyLinkTag <body ...          a control's text; after "=", a text that the pages are made with
//
// " // " stands between steps, or lines of one mark, that are on one line. A text in double quotes may hold \n, \r, \t,
// \\, \" and \xE9, and so may what follows a control's name. A line that ends in "..." holds for all that begin with
// it. "@/" is the case's folder, "@today" the date. An error report is given by its label, number and text, and what to
// do next stands behind it. FOLIONET_REWRITE_EXPECTED=1, with runs_test or forms_test run by themselves, writes what
// comes out into the files, for a person to review the difference.

#include <gtest/gtest.h>

#include "Case.h"
#include "Library.h"
#include "Script.h"

namespace folionet::test {
namespace {

class Runs : public testing::Test {
 public:
  explicit Runs(ScriptCase script) : m_script(std::move(script)) {}
  void TestBody() override {
    const TemporaryFolder home;
    MakeSmallLibrary(home);
    const Case runner(home);
    RunScript(m_script, [&](const std::string& line) { return runner.Do(line); });
  }

 private:
  ScriptCase m_script;
};

}  // namespace
}  // namespace folionet::test

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  folionet::test::RegisterScripts<folionet::test::Runs>(folionet::test::Drives::kPrograms);
  return RUN_ALL_TESTS();
}
