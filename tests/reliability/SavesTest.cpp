#include "EveryCall.h"

// Each call of what saves: settings, lists, the custom header, all of them together, and an import.

namespace folionet::test {
namespace {

Job Save(const std::string& what, const std::string& file, const std::string& before) {
  const std::set<std::string> replaces{"chmod", "close",     "create", "fsync", "lock",
                                       "open",  "ftruncate", "rename", "stat",  "write"};
  std::set<std::string> edits = replaces;
  edits.insert("read");
  return {what,
          [=](const TemporaryFolder& home) { home.Write(file, before); },
          {SAVE_PROGRAM, what, "./", "the new text, \"quoted\""},
          what == "header" ? replaces : edits};
}

class SavesOf : public EveryCall, public testing::WithParamInterface<Job> {};

TEST_P(SavesOf, LeaveTheOldOrTheNewAndNothingElse) {
  TryAll(GetParam(), [&](const TemporaryFolder& home, const FaultyRun& run, const Call& struck) {
    FolderContent now = Visible(home);
    // What is told is the file that a person knows, not the one on its way to take its place.
    if (run.result.status != 0) ExpectReport(run, LastPart(m_after.begin()->first));
    for (const auto& [name, bytes] : m_after) {
      ASSERT_TRUE(now.contains(name)) << name << " is gone";
      EXPECT_TRUE(bytes == now[name] || (run.result.status != 0 && m_before[name] == now[name])) << now[name];
      now.erase(name);
    }
    // A file that could not be taken away, or was not because the program was killed, may stay until the next save.
    EXPECT_TRUE(now.empty() || struck.name == "unlink" || struck.name == "stat" || m_isKilled)
        << DescribeDifference({}, now);
    GetParam().arrange(home);
    EXPECT_EQ(GetParam().Run(home).result.status, 0);
    EXPECT_EQ(DescribeDifference(m_after, Visible(home)), "") << "after the next save";
  });
}

INSTANTIATE_TEST_SUITE_P(Every, SavesOf,
                         testing::Values(Save("settings", "Folionet.ini",
                                              "[Keys]\nDir1=the old text\nKeywords=kept, as it is\n"),
                                         Save("header", "CustomHeader.txt", "<p>the old header</p>\r\n"),
                                         Save("record", "lang.txt", "\"en-us\",\"English USA\"\r\n")),
                         [](const auto& parameter) { return parameter.param.name; });

class SavesTogether : public EveryCall {
 protected:
  const std::set<std::string> m_calls{"chmod", "close", "create", "fsync", "ftruncate", "lock",
                                      "open",  "read",  "rename", "stat",  "unlink",    "write"};
};

// A letter that the new charset lacks is kept in a file of its own.
TEST_F(SavesTogether, GiveAllFilesTheirNewContentOrNone) {
  const auto arrange = [](const TemporaryFolder& home) {
    home.Write("Folionet.ini", "[Keys]\nCharset=windows-1252 x\n");
    home.Write("CustomHeader.txt", "caf\xE9\r\n");
    home.Write("lang.txt",
               "\"fr\",\"Fran\xE7"
               "ais\"\r\n");
  };
  const Command command{SAVE_PROGRAM, "encoding", "./", "koi8-r (Cyrillic)"};
  TryOneChange({"encoding", arrange, command, m_calls}, "/.Folionet.unfinished", {SAVE_PROGRAM, "finish", "./", ""});
}

#ifdef WITH_FORM
// In the program of the form: the header, the encoding and, at exit, all options.
TEST_F(SavesTogether, OfTheFormAreToldWhenTheyFail) {
  const auto arrange = [](const TemporaryFolder& home) {
    MakeSmallLibrary(home);
    home.Write("config/program/default.css", "body {}\n");
    home.Write("config/program/lang.txt", "\"en-us\",\"English USA\"\r\n");
    home.Write("config/program/enc.txt", "\"windows-1252\",\"(ANSI Latin 1)\"\r\n\"utf-8\",\"(Unicode)\"\r\n");
    home.Write("config/program/CustomHeader.txt", "caf\xE9\r\n");
    home.Write("config/Folionet.ini", "[Keys]\nKeywords=kept\n");
  };
  const Command command{"/usr/bin/env",
                        "QT_QPA_PLATFORM=offscreen",
                        "QT_QPA_GENERIC_PLUGINS=person",
                        "QT_PLUGIN_PATH=" PERSON_PLUGINS,
                        "PERSON=cmdCustomHeader|frmCustomHeader.Text1=typed|frmCustomHeader.Command1|chkDoubleSpace|"
                        "cmdPageEncoding|frmEncoding.cboCharset=utf-8 (Unicode)|frmEncoding.cmdDone",
                        std::filesystem::path(FOLIONET_CLI).replace_filename("folionet"),
                        "--versalia-path=installation",
                        "--program-folder=config/program"};
  const Job job{"form", arrange, command, m_calls, "config/", true};
  TryAll(job, [&](const TemporaryFolder& home, const FaultyRun& run, const Call&) {
    FolderContent now = Visible(home);
    for (const auto& [name, bytes] : m_after) {
      if (name.ends_with("FolionetForms.ini")) continue;  // the places of windows
      const bool isWhole = now[name] == bytes || now[name] == m_before[name];
      EXPECT_TRUE(isWhole || name.ends_with("Folionet.ini")) << name << " is neither old nor new: " << now[name];
    }
    EXPECT_NE(now["config/Folionet.ini"].find("Keywords=kept\n"), std::string::npos) << now["config/Folionet.ini"];
    EXPECT_TRUE(m_isKilled || now["config/Folionet.ini"].find("chkDoubleSpace=1\n") != std::string::npos)
        << run.result.output;
  });
}
#endif

class Imports : public EveryCall {};

// The next start completes what a killed import has left.
TEST_F(Imports, ReplaceAllFilesOfATextOrNone) {
  const Command import{FOLIONET_CLI, "import", "text", "--name=Text", "--into=lib", "--replace", "--quiet"};
  const TemporaryFolder made;
  made.Write("text", "Ge1:1 old\nGe1:2 text\n");
  ASSERT_EQ(RunProgram(import, made.Path()).errors, "");
  const FolderContent library = ReadFolder(made.Path());
  const Job job{"import",
                [&](const TemporaryFolder& home) {
                  for (const auto& [name, bytes] : library) home.Write(name, bytes);
                  home.Write("text", "JON 1:1 the new \xD7\x91\n");
                },
                import,
                {"chmod", "close", "create", "fsync", "ftruncate", "lock", "mkdir", "open", "read", "rename", "stat",
                 "unlink", "write"},
                {},
                false,
                3};
  TryOneChange(job, "/.Folionet.import", {FOLIONET_CLI, "list", "languages", "--versalia-path=lib"});
}

}  // namespace
}  // namespace folionet::test
