#include <gtest/gtest.h>

#include <QComboBox>
#include <QLineEdit>
#include <functional>

#include "DialogBench.h"
#include "TextBox.h"
#include "frmBackground.h"
#include "frmCustomHeader.h"
#include "frmCustomizeFooter.h"
#include "frmEffects.h"
#include "frmEncoding.h"
#include "frmKeywords.h"
#include "frmLinkToMAin.h"
#include "frmPAgeTitles.h"

namespace folionet {
namespace {

constexpr char kChapter[] = "book1_1.html";
constexpr char kIndex[] = "index.html";

// What a page must hold after a person set options in a dialog and left it.
struct PageCase {
  const char* name;
  std::function<void(DialogBench&)> set;
  std::vector<std::pair<const char*, const char*>> lines;  // page, text with its line breaks
};

template <typename Form>
std::function<void(DialogBench&)> In(std::function<void(Form&, DialogBench&)> set) {
  return [set](DialogBench& bench) {
    Form form(bench.State());
    form.LoadForm();
    set(form, bench);
  };
}

void Type(const QWidget& form, const char* box, const char* text) { Find<QLineEdit>(form, box).setText(text); }

std::vector<PageCase> HeadCases() {
  return {
      {"effects",
       In<frmEffects>([](frmEffects& form, DialogBench& bench) {
         bench.ui.colours = {0x0A0B0C, 0x332211};
         Click(form, "cmdHyperlink");
         Click(form, "cmdRollover");
         Click(form, "chkUnderline");
         Find<QComboBox>(form, "cboSize").setEditText("14pt");
         Click(form, "cmdClose");
       }),
       {{kChapter,
         "\r\n<style fprolloverstyle>A:hover {color: #112233; font-size: 14pt; text-decoration: underline; }</style>"
         "\r\n</head>\r\n"},
        {kChapter, "\r\n<body link=\"#0C0B0A\" body bgcolor=\"#FFFFFF\" text=\"#020280\">\r\n"}}},
      {"titles, unsaved",
       In<frmPAgeTitles>([](frmPAgeTitles& form, DialogBench&) {
         Type(form, "txtIndex_html", "All of %bible%");
         Type(form, "txtPageTitles", "%bk% %ch% (%vs%) \xE2\x80\x94");
       }),
       {{kChapter, "\r\n<title>Book1 1 (1-3) \x97</title>\r\n"}, {kIndex, "<title>All of Small Bible</title>"}}},
      {"keywords, unsaved",
       In<frmKeywords>([](frmKeywords& form, DialogBench&) {
         Find<TextBox>(form, "txtKeywordsI").setPlainText("ki %bible%");
         Find<TextBox>(form, "txtDescriptionI").setPlainText("di %bk%.");
         Find<TextBox>(form, "txtKeyWords").setPlainText("k %bk%");
         Find<TextBox>(form, "txtDescription").setPlainText("d %ch%");
       }),
       {{kChapter,
         "\r\n<meta name=\"DESCRIPTION\" content=\"d 1\">\r\n<meta name=\"KEYWORDS\" content=\"k Book1\">\r\n"},
        {kIndex, "content=\"di .\">"},
        {kIndex, "content=\"ki Small Bible\">"}}},
      {"encoding, typed over",
       In<frmEncoding>([](frmEncoding& form, DialogBench&) {
         Type(form, "txtLang", "fr French");
         Type(form, "txtCharset", "iso-8859-1 Latin 1");
         Click(form, "cmdDone");
       }),
       {{kChapter,
         "\r\n<meta http-equiv=\"Content-Type\" content=\"text/html; charset=iso-8859-1\">\r\n<meta "
         "http-equiv=\"Content-Language\" content=\"fr\">\r\n"},
        {kIndex, "charset=iso-8859-1\">"}}},
  };
}

std::vector<PageCase> BodyCases() {
  return {
      {"link back, unsaved",
       In<frmLinkToMAin>([](frmLinkToMAin& form, DialogBench&) {
         Type(form, "txtLinkToMain", "Up to %bible%");
         Click(form, "ORight");
         auto& size = Find<QComboBox>(form, "cboSize");
         size.setCurrentIndex(4);
         emit size.textActivated(size.currentText());
       }),
       {{kChapter,
         "<br><p align=\"right\"><a href=\"index.html\"><b><font face=\"Verdana\" size=\"5\">Up to Small "
         "Bible</font></b></a></p>"}}},
      {"background",
       In<frmBackground>([](frmBackground& form, DialogBench& bench) {
         bench.State().options.chkBack = true;
         bench.ui.files = {"/pictures/sky.gif"};
         Click(form, "cmdImageName");
         Click(form, "chkWaterMark");
       }),
       {{kChapter,
         "\r\n <body background=\"sky.gif\" bgproperties=\"fixed\" bgcolor=\"#FFFFFF\" text=\"020280\">\r\n"}}},
      {"header",
       In<frmCustomHeader>([](frmCustomHeader& form, DialogBench&) {
         Find<TextBox>(form, "Text1").setPlainText("<b>top</b>\nmore");
         Click(form, "Command1");
       }),
       {{kChapter, "\r\n<b>top</b>\r\nmore\r\n"}, {kIndex, "\r\n<b>top</b>\r\nmore\r\n"}}},
      {"footer",
       In<frmCustomizeFooter>([](frmCustomizeFooter& form, DialogBench&) {
         Find<TextBox>(form, "Text1").setPlainText("<i>foot</i>");
         Click(form, "cmdDone");
       }),
       {{kChapter, "\r\n<i>foot</i>\r\n</body>\r\n</html>\r\n"},
        {kIndex, "\r\n<i>foot</i>\r\n</body>\r\n</html>\r\n"}}},
  };
}

void CheckPages(const std::vector<PageCase>& cases) {
  for (const PageCase& c : cases) {
    SCOPED_TRACE(c.name);
    DialogBench bench;
    c.set(bench);
    for (const auto& [page, text] : c.lines) {
      const std::string compiled = bench.Compiled(page);
      EXPECT_NE(compiled.find(text), std::string::npos) << text << "\nis missing in " << page << ":\n" << compiled;
    }
    EXPECT_TRUE(bench.ui.reports.empty());
  }
}

TEST(PagesTest, OptionsReachTheHeads) { CheckPages(HeadCases()); }

TEST(PagesTest, OptionsReachTheBodies) { CheckPages(BodyCases()); }

}  // namespace
}  // namespace folionet
