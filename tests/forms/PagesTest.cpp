#include "FormTest.h"

namespace folionet {
namespace {

constexpr char kChapter[] = "site/book1_1.html";
constexpr char kIndex[] = "site/index.html";

// What a person does in the forms, control by control, and what a page must hold then, with its line breaks.
const struct {
  const char* name;
  std::vector<std::pair<const char*, const char*>> given;
  std::vector<std::pair<const char*, const char*>> lines;
} kCases[] = {
    {"effects",
     {{"frmEffects.cmdHyperlink", "658188"},
      {"frmEffects.cmdActive", "1"},
      {"frmEffects.cmdFollowed", "2"},
      {"frmEffects.cmdRollover", "3351057"},
      {"frmEffects.chkUnderline", ""},
      {"frmEffects.cboSize", "14pt"},
      {"frmEffects.cmdClose", ""}},
     {{kChapter,
       "\r\n<style fprolloverstyle>A:hover {color: #112233; font-size: 14pt; text-decoration: underline; }</style>"
       "\r\n</head>\r\n"},
      {kChapter,
       "\r\n<body link=\"#0C0B0A\" alink=\"#010000\" vlink=\"#020000\" body bgcolor=\"#FFFFFF\" "
       "text=\"#020280\">\r\n"}}},
    {"titles, unsaved",
     {{"frmPAgeTitles.txtIndex_html", "All of %bible%"},
      {"frmPAgeTitles.txtPageTitles", "%bk% %ch% (%vs%) \xE2\x80\x94"}},
     {{kChapter, "\r\n<title>Book1 1 (1-3) \x97</title>\r\n"}, {kIndex, "<title>All of Small Bible</title>"}}},
    {"keywords, unsaved",
     {{"frmKeywords.txtKeywordsI", "ki %bible%"},
      {"frmKeywords.txtDescriptionI", "di %bk%."},
      {"frmKeywords.txtKeyWords", "k %bk%"},
      {"frmKeywords.txtDescription", "d %ch%"}},
     {{kChapter, "\r\n<meta name=\"DESCRIPTION\" content=\"d 1\">\r\n<meta name=\"KEYWORDS\" content=\"k Book1\">\r\n"},
      {kIndex, "content=\"di .\">"},
      {kIndex, "content=\"ki Small Bible\">"}}},
    {"encoding, typed over",
     {{"cmdPageEncoding", ""},
      {"frmEncoding.txtLang", "fr French"},
      {"frmEncoding.txtCharset", "iso-8859-1 Latin 1"},
      {"frmEncoding.cmdDone", ""}},
     {{kChapter,
       "\r\n<meta http-equiv=\"Content-Type\" content=\"text/html; charset=iso-8859-1\">\r\n<meta "
       "http-equiv=\"Content-Language\" content=\"fr\">\r\n"},
      {kIndex, "charset=iso-8859-1\">"}}},
    {"link back, unsaved",
     {{"frmLinkToMAin.txtLinkToMain", "Up to %bible%"}, {"frmLinkToMAin.ORight", ""}, {"frmLinkToMAin.cboSize", "5"}},
     {{kChapter,
       "<br><p align=\"right\"><a href=\"index.html\"><b><font face=\"Verdana\" size=\"5\">Up to Small "
       "Bible</font></b></a></p>"}}},
    {"background",
     {{"chkBack", ""}, {"frmBackground.cmdImageName", "/pictures/sky.gif"}, {"frmBackground.chkWaterMark", ""}},
     {{kChapter, "\r\n <body background=\"sky.gif\" bgproperties=\"fixed\" bgcolor=\"#FFFFFF\" text=\"020280\">\r\n"}}},
    {"header",
     {{"frmCustomHeader.Text1", "<b>top</b>\nmore"}, {"frmCustomHeader.Command1", ""}},
     {{kChapter, "\r\n<b>top</b>\r\nmore\r\n"}, {kIndex, "\r\n<b>top</b>\r\nmore\r\n"}}},
    {"footer",
     {{"frmCustomizeFooter.Text1", "<i>foot</i>"}, {"frmCustomizeFooter.cmdDone", ""}},
     {{kChapter, "\r\n<i>foot</i>\r\n</body>\r\n</html>\r\n"}, {kIndex, "\r\n<i>foot</i>\r\n</body>\r\n</html>\r\n"}}},
    {"main form",
     {{"cmdForeColour", "255"}, {"cmdBackColour", "1"}, {"OptAlignJust", ""}, {"cboLang", "BOOKS_DUTCH.TXT"}},
     {{"site/boek1_1.html", "<body bgcolor=\"#010000\" text=\"#FF0000\">"}, {kIndex, "<p align=\"Justify\">"}}},
};

class Pages : public FormTest {};

TEST_F(Pages, HoldWhatWasSetInTheForms) {
  for (const auto& c : kCases) {
    SCOPED_TRACE(c.name);
    Remove("config/Folionet.ini");
    ASSERT_TRUE(Start());
    for (const auto& [control, text] : c.given) Give(control, text);
    ChooseOutput();
    Click("cmdCompile");
    EXPECT_EQ(m_ui.log, Log{"Compilation Complete Folionet"});
    for (const auto& [page, text] : c.lines) {
      const std::string compiled = m_home.Read(page);
      EXPECT_NE(compiled.find(text), std::string::npos) << text << "\nis missing in " << page << ":\n" << compiled;
    }
  }
}

}  // namespace
}  // namespace folionet
