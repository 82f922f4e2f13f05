#include <gtest/gtest.h>

#include "SiteChanges.h"
#include "Sitemap.h"

namespace folionet {
namespace {

using Names = std::vector<std::string>;

TEST(SiteChangesTest, TellsEachFileOnceAsItWasBeforeTheRun) {
  SiteChanges changes;
  changes.Written("new then same", PageChange::kNew);
  changes.Written("new then same", PageChange::kSame);
  changes.Written("changed then changed", PageChange::kChanged);
  changes.Written("changed then changed", PageChange::kChanged);
  changes.Written("same then changed", PageChange::kSame);
  changes.Written("same then changed", PageChange::kChanged);
  changes.Written("same", PageChange::kSame);
  changes.Written("new then removed", PageChange::kNew);
  changes.Removed("new then removed", true);
  changes.Written("same then removed", PageChange::kSame);
  changes.Removed("same then removed", true);
  changes.Removed("never there", false);
  changes.Removed("removed", true);
  EXPECT_EQ(changes.New(), Names{"new then same"});
  EXPECT_EQ(changes.Changed(), (Names{"changed then changed", "same then changed"}));
  EXPECT_EQ(changes.Same(), Names{"same"});
  EXPECT_EQ(changes.Removed(), (Names{"same then removed", "removed"}));
}

TEST(SitemapTest, EncodesAddressesAndEscapesXml) {
  EXPECT_EQ(BuildSitemap("https://a.b/bible & more/%C3%A9", {"index.html", "éxodo_1.html", "a#b%?.html", "o'b.html"}),
            "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n"
            "<urlset xmlns=\"http://www.sitemaps.org/schemas/sitemap/0.9\">\r\n"
            "<url><loc>https://a.b/bible%20&amp;%20more/%C3%A9/index.html</loc></url>\r\n"
            "<url><loc>https://a.b/bible%20&amp;%20more/%C3%A9/%C3%A9xodo_1.html</loc></url>\r\n"
            "<url><loc>https://a.b/bible%20&amp;%20more/%C3%A9/a%23b%25%3F.html</loc></url>\r\n"
            "<url><loc>https://a.b/bible%20&amp;%20more/%C3%A9/o&apos;b.html</loc></url>\r\n"
            "</urlset>\r\n");
}

TEST(SitemapTest, OnlyAddressesOfTheWebWillDo) {
  for (const char* address : {"http://a.b", "https://a.b/c/"}) EXPECT_TRUE(IsPublicAddress(address)) << address;
  for (const char* address : {"", "a.b", "ftp://a.b", "https://", "https:///x", "https://a.b/?q", "https://a.b/#f"}) {
    EXPECT_FALSE(IsPublicAddress(address)) << address;
  }
}

}  // namespace
}  // namespace folionet
