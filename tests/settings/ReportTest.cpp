#include <gtest/gtest.h>
#include <sys/stat.h>

#include "BuildInfo.h"
#include "ErrorReport.h"
#include "ProgramFolder.h"
#include "TemporaryFolder.h"

namespace folionet {
namespace {

TEST(ErrorReportTest, HasTheFixedLayout) {
  EXPECT_EQ(BuildErrorReport(53, "GetLang", "one\r\ntwo", "/opt/folionet/"),
            "An Error has occured.\r\n"
            "Title        : Folionet\r\n"
            "App Path     : /opt/folionet\r\n"
            "Software Ver : " +
                std::string(kVersion) +
                ".\r\n"
                "Module       : GetLang.\r\n"
                "Error Number : 53\r\n"
                "Description  : File not found.\r\n"
                "Extra Info   : \r\n"
                "one\r\ntwo\r\n"
                "\r\n"
                "If the error persists, please report it at: " +
                kSupportAddress +
                "\r\n"
                "PLEASE SUPPLY A FULL DESCRIPTION OF THE ERROR,\r\n"
                "EXACTLY as you see it in this error message.");
}

TEST(ProgramFolderTest, AChosenFolderIsUsedAsItIs) {
  EXPECT_EQ(FindProgramFolder("/some\\where"), "/some/where/");
  EXPECT_EQ(FindProgramFolder("/x/"), "/x/");
}

// The test's own folder holds the delivered files, as an unpacked program's does.
TEST(ProgramFolderTest, TheExecutablesFolderServesWhenItHoldsTheStyleSheet) {
  EXPECT_EQ(FindProgramFolder(""), ExecutableFolder());
}

}  // namespace
}  // namespace folionet
