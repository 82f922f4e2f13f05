#include <gtest/gtest.h>

#include "ProgramRun.h"
#include "TemporaryFolder.h"

namespace folionet::test {
namespace {

constexpr char kHead[] = "<meta http-equiv=\"Content-Type\" content=\"text/html; charset=windows-1252\">\n";

TEST(VerifyTest, NamesEveryLinkThatLeadsNowhere) {
  const TemporaryFolder home;
  home.Write("site/default.css", "");
  home.Write("site/éxodo_1.html", kHead);
  home.Write("site/Upper.html", "");
  home.Write("site/stale_1.html", "<a href=\"stale_2.html\">");
  home.Write("site/stale_2.html", "");
  home.Write("site/sub/page.html", "");
  home.Write("site/a b.html", "");
  home.Write("site/index.html", std::string(kHead) +
                                    "<LINK rel=\"x\" HREF = default.css>\n"
                                    "<body background=\"paper.gif\" text=\"#000000\">\n"
                                    "<font face=\"Arial size=\"3><a href=\"\xE9xodo_1.html\">1</a>\n"
                                    "<a href='upper.html'><a href=\"%61%20b.html?q#f\"><a href=\"#top\"><a href=\"\">\n"
                                    "<a href=\"https://x.org/none\"><a href=\"mailto:a@b\"><a href=\"//x.org/y\">\n"
                                    "<img src=\"../out.gif\"><a href=\"sub/page.html\"><a href=\"/root.html\">\n"
                                    "no tag: href=\"none.html\" <a data-href=\"none.html\" href=\"sub\\page.html\">\n");
  const ProgramResult result = RunCli({"verify", "site"}, home.Path());
  EXPECT_EQ(result.output,
            "index.html:3: \"paper.gif\" is not there.\n"
            "index.html:5: \"upper.html\" is there in another letter case only, Upper.html.\n"
            "index.html:7: \"../out.gif\" leads out of the folder.\n"
            "index.html:7: \"/root.html\" leads out of the folder.\n"
            "index.html:8: \"sub\\page.html\" holds \"\\\", which no address does.\n"
            "Upper.html: index.html does not lead here; it may be stale.\n"
            "stale_1.html: index.html does not lead here; it may be stale.\n"
            "stale_2.html: index.html does not lead here; it may be stale.\n"
            "6 pages, 10 links: 5 broken, 3 pages possibly stale.\n");
  EXPECT_EQ(result.status, 1);
}

TEST(VerifyTest, SaysWhatItNeeds) {
  const TemporaryFolder home;
  home.Write("site/main.html", "");
  EXPECT_EQ(RunCli({"verify", "none"}, home.Path()).errors,
            "There is no folder \"none\": give the one that compile wrote into.\n");
  EXPECT_EQ(RunCli({"verify", "site"}, home.Path()).errors,
            "There is no index.html and no index.htm in \"site\": give the index page with --index NAME.\n");
  EXPECT_EQ(RunCli({"verify", "site", "--index", "x.html"}, home.Path()).status, 3);
  EXPECT_EQ(RunCli({"verify", "site", "--index", "main.html"}, home.Path()).output,
            "1 pages, 0 links: 0 broken, 0 pages possibly stale.\n");
}

}  // namespace
}  // namespace folionet::test
