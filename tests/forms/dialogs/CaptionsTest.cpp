#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>
#include <QVariant>
#include <memory>
#include <set>

#include "DialogBench.h"
#include "QtText.h"
#include "frmAddnew.h"
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

// What a person reads, letter for letter; slips in it are meant. Lines are joined by LF; "&" of mnemonics is left out.
const struct {
  const char* form;
  const char* control;   // empty for the form itself
  const char* property;  // "items" stands for the entries of a list
  const char* text;
} kTexts[] = {
    {"frmEffects", "", "windowTitle", "Rollover and Hyperlink Effects"},
    {"frmEffects", "cmdHyperlink", "text", "Hyperlink Color"},
    {"frmEffects", "cmdActive", "text", "Active Hyperlink"},
    {"frmEffects", "cmdFollowed", "text", "Followed Hyperlink"},
    {"frmEffects", "cmdRollover", "text", "Rollover Color"},
    {"frmEffects", "lblFont", "text", "Font"},
    {"frmEffects", "lblSize", "text", "Font Size"},
    {"frmEffects", "lblStyle", "text", "Font Style"},
    {"frmEffects", "chkSmallCaps", "text", "Small Caps"},
    {"frmEffects", "chkAllCaps", "text", "All Caps"},
    {"frmEffects", "chkUnderline", "text", "Underline"},
    {"frmEffects", "chkRollover", "text", "Enable Hyperlink Rollover Effexts"},
    {"frmEffects", "grpRollover", "title", "Rollover Effects"},
    {"frmEffects", "cmdRestoreDefaults", "text", "Restore Defaults"},
    {"frmEffects", "cmdClose", "text", "Close"},
    {"frmEffects", "cboSize", "items",
     "8pt\n"
     "10pt\n"
     "12pt\n"
     "14pt\n"
     "18pt\n"
     "24pt\n"
     "36pt\n"
     "10px\n"
     "0.5in"},
    {"frmEffects", "cboStyle", "items",
     "Regular\n"
     "Bold\n"
     "Italic\n"
     "Bold Italic"},
    {"frmPAgeTitles", "lblHelp", "text",
     "The text you enter in the Command Area is the text that will be used for the TITLE of each page\n"
     "The TITLES are what you see in the search Engines. E.g. 'Read the ASV Online'\n"
     "There are four special DYNAMIC words you may use:\n"
     "\n"
     "1. %bible% - The name of the Bible e.g. 'NIV'. (Taken from 'Translations.txt' in "
     "..\\Versalia\\Sysdefs Folder),\n"
     "2. %bk% - The name of the Book. (Taken from BOOKS_*.TXT in \\..Versalia\\sysdefs\\ folder),\n"
     "3. %ch% - the Chapter number e.g. '1, 2, 3' etc.,\n"
     "4. %vs% - the Number of verses for the Chapter being indexed e.g. '1-35, 1-25, 1-12' etc."},
    {"frmPAgeTitles", "grpCommand", "title", "Command Area"},
    {"frmPAgeTitles", "grpPreview", "title", "Preview Area Examples"},
    {"frmKeywords", "", "windowTitle", "META Description and Keywords"},
    {"frmKeywords", "lblHelp", "text",
     "The text you enter in the Command Area is the text that will be used for the META TAGS of each "
     "page:\n"
     "1. The DESCRIPTION you see in the search Engines beneath the title. E.g. 'Read the ASV Chapter 22 "
     "Online...'\n"
     "2. The KEYWORDS are the terms Search Engines use to find your site on the Internet and rank it "
     "(Select your keywords carefully as this will enhance your sites popularity! Remember to seperate "
     "terms with commas)\n"
     "There are four special DYNAMIC words you may use:\n"
     "\n"
     "1. %bible% - The name of the Bible e.g. 'NIV'. (Taken from 'Translations.txt' in "
     "..\\Versalia\\Sysdefs Folder),\n"
     "2. %bk% - The name of the Book. (Taken from BOOKS_*.TXT in \\..Versalia\\sysdefs\\ folder),\n"
     "3. %ch% - the Chapter number e.g. '1, 2, 3' etc.,\n"
     "4. %vs% - the Number of verses for the Chapter being indexed e.g. '1-35, 1-25, 1-12' etc."},
    {"frmKeywords", "grpCommand", "title", "Command Area"},
    {"frmKeywords", "grpKeywords", "title", "META Keywords"},
    {"frmKeywords", "grpDescriptions", "title", "META Descriptions"},
    {"frmKeywords", "grpPreview", "title", "Preview Area Examples"},
    {"frmKeywords", "lblKeyWords", "text", "All other Pages"},
    {"frmKeywords", "lblDescription", "text", "All other Pages"},
    {"frmKeywords", "lblKeyWordsOK", "text", "META Keywords - All other pages"},
    {"frmKeywords", "lblDescriptionOK", "text", "META Description All other pages"},
    {"frmKeywords", "cmdCheck", "text", "Refresh"},
    {"frmKeywords", "cmdClose", "text", "Close"},
    {"frmLinkToMAin", "", "windowTitle", "Link Text back to main page"},
    {"frmLinkToMAin", "lblHelp", "text",
     "Enter the text which appears on the top of each page as a link \n"
     "which allows clicking back to the 'index.html' page\n"
     "The special symbol '%bible%' will be replaced with the current Bible"},
    {"frmLinkToMAin", "lblLinkToMain", "text", "Type in the Text"},
    {"frmLinkToMAin", "OLeft", "text", "Left"},
    {"frmLinkToMAin", "OCenter", "text", "Center"},
    {"frmLinkToMAin", "ORight", "text", "Right"},
    {"frmLinkToMAin", "grpAlignment", "title", "Alignment"},
    {"frmLinkToMAin", "lblSize", "text", "Font Size"},
    {"frmLinkToMAin", "lblLinkToMainOK", "text", "Preview"},
    {"frmLinkToMAin", "cmdRefresh", "text", "Refresh"},
    {"frmLinkToMAin", "cmdClose", "text", "Close"},
    {"frmLinkToMAin", "cboSize", "items",
     "1\n"
     "2\n"
     "3\n"
     "4\n"
     "5\n"
     "6\n"
     "7"},
    {"frmBackground", "", "windowTitle", "Use Background Image"},
    {"frmBackground", "lblHelp", "text",
     "NOTE: For Compilation purposes it does not matter where the image file is.\n"
     "However, once compiled, the image file must reside in the same folder as the HTML Pages\n"
     "\n"
     "Select an image or type it's name in the box below."},
    {"frmBackground", "chkWaterMark", "text", "Watermark"},
    {"frmBackground", "chkWaterMark", "toolTip",
     "A watermark is a background image that is fixed i.e. it does not scroll with the text"},
    {"frmBackground", "cmdImageName", "text", "Select Image"},
    {"frmBackground", "cmdClose", "text", "Close"},
    {"frmCustomHeader", "", "windowTitle", "Custom Header - Paste HTML Code here."},
    {"frmCustomHeader", "Command1", "text", "Done"},
    {"frmCustomHeader", "Label1", "text",
     "NOTE:\n"
     "The custom header must ONLY include the HTML source between the BODY tags.\n"
     "Any other HTML will cause the header to interfere with the rest of the page."},
    {"frmCustomizeFooter", "", "windowTitle", "Custom Footer - Paste HTML Code here."},
    {"frmCustomizeFooter", "cmdDone", "text", "Done"},
    {"frmCustomizeFooter", "Label1", "text",
     "NOTE:\n"
     "The custom footer must ONLY include the HTML source between the BODY tags.\n"
     "Any other HTML will cause the header to interfere with the rest of the page."},
    {"frmEncoding", "", "windowTitle", "Set Page Encoding Options"},
    {"frmAddnew", "", "windowTitle", "Add new Definitions to \"lang.txt\" and \"enc.txt\""},
    {"frmEncoding", "lblLanguageHelp", "text",
     "Language encoding. Here are some examples:\n"
     "'en-us' USA English\n"
     "'en-za' South African English\n"
     "'el' Greek\n"
     "'sq' Albanian\n"
     "If in doubt, create a page in MS Front Page then view the source."},
    {"frmEncoding", "lblCharsetHelp", "text",
     "Document encoding. Select one from the drop down box\n"
     "Type it in the text box below."},
    {"frmEncoding", "lblListHelp", "text",
     "To add to the Languages or the Charset information click the 'ADD NEW' button or you may edit the "
     "files called\n"
     "LANG.TXT and ENC.TXT respectively (found in the same folder as Folionet.exe)\n"
     "NOTE: You must enter the new data the same as in the file WITH COMMAS AND QUOTATION MARKS.\n"
     "e.g. \"big5\",\"(Traditional Chinese - Big 5)\""},
    {"frmEncoding", "grpLanguage", "title", "Search Engine Information"},
    {"frmEncoding", "grpCharset", "title", "Page Encoding"},
    {"frmEncoding", "cmdAddNew", "text", "Add New"},
    {"frmEncoding", "cmdDone", "text", "Done/Close"},
    {"frmAddnew", "lblLangAbbr", "text", "Abbreviation e.g. en-us"},
    {"frmAddnew", "lblLangLang", "text", "Language e.g. English USA"},
    {"frmAddnew", "cmdUpdLang", "text", "Update Language"},
    {"frmAddnew", "lblEncAbbr", "text", "Abbreviation e.g. windows-1252"},
    {"frmAddnew", "lblEncLang", "text", "Language e.g. ANSI Latin 1"},
    {"frmAddnew", "cmdUpdEnc", "text", "Update Encoding"},
    {"frmAddnew", "cmdCancel", "text", "Close"},
    {"frmAddnew", "grpLang", "title", "Language"},
    {"frmAddnew", "grpEnc", "title", "Encoding"},
};

std::vector<std::unique_ptr<QDialog>> LoadedDialogs(AppState& state) {
  std::vector<std::unique_ptr<QDialog>> dialogs;
  const auto add = [&]<typename Form>(std::unique_ptr<Form> form) {
    form->LoadForm();
    dialogs.push_back(std::move(form));
  };
  add(std::make_unique<frmEffects>(state));
  add(std::make_unique<frmPAgeTitles>(state));
  add(std::make_unique<frmKeywords>(state));
  add(std::make_unique<frmLinkToMAin>(state));
  add(std::make_unique<frmBackground>(state));
  add(std::make_unique<frmCustomHeader>(state));
  add(std::make_unique<frmCustomizeFooter>(state));
  add(std::make_unique<frmEncoding>(state));
  add(std::make_unique<frmAddnew>(state));
  return dialogs;
}

std::string TextOf(const QWidget& control, const std::string& property) {
  if (property != "items") return FromQt(control.property(property.c_str()).toString().remove('&'));
  std::string items;
  const auto& list = dynamic_cast<const QComboBox&>(control);
  for (int i = 0; i < list.count(); ++i) items += (i == 0 ? "" : "\n") + FromQt(list.itemText(i));
  return items;
}

TEST(CaptionsTest, EveryTextIsLetterForLetter) {
  DialogBench bench;
  std::set<std::string> forms;
  for (const auto& form : LoadedDialogs(bench.State())) {
    const std::string name = FromQt(form->objectName());
    forms.insert(name);
    for (const auto& c : kTexts) {
      if (name != c.form) continue;
      const QWidget& control = *c.control == '\0' ? *form : Find<QWidget>(*form, c.control);
      EXPECT_EQ(TextOf(control, c.property), c.text) << c.form << "." << c.control;
    }
  }
  for (const auto& c : kTexts) EXPECT_TRUE(forms.contains(c.form)) << c.form;
}

TEST(CaptionsTest, ControlsCanBeNamedAndNoTwoMnemonicsAreTheSame) {
  DialogBench bench;
  for (const auto& form : LoadedDialogs(bench.State())) {
    std::set<const QWidget*> named;
    std::set<QChar> mnemonics;
    for (const QWidget* control : form->findChildren<QWidget*>()) {
      const QString caption = control->property("text").toString() + control->property("title").toString();
      const auto* label = qobject_cast<const QLabel*>(control);
      const bool isCaption = label == nullptr || label->buddy() != nullptr;
      if (label != nullptr) named.insert(label->buddy());
      if (!control->accessibleName().isEmpty() || !caption.isEmpty()) named.insert(control);
      const qsizetype at = isCaption ? caption.indexOf('&') : -1;
      const bool isNew = at < 0 || mnemonics.insert(caption[at + 1].toUpper()).second;
      EXPECT_TRUE(isNew) << FromQt(caption);
    }
    for (const QWidget* control : form->findChildren<QWidget*>()) {
      if (control->objectName().isEmpty() || control->objectName().startsWith("qt_")) continue;
      const bool takesFocus = (control->focusPolicy() & Qt::TabFocus) != 0;
      EXPECT_TRUE(!takesFocus || named.contains(control)) << FromQt(form->objectName() + '.' + control->objectName());
    }
  }
}

}  // namespace
}  // namespace folionet
