#include <gtest/gtest.h>

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>

#include "DialogBench.h"
#include "KeyReleases.h"
#include "QtText.h"
#include "TextBox.h"
#include "frmKeywords.h"
#include "frmPAgeTitles.h"

namespace folionet {
namespace {

void ReleaseKey(QWidget& control) {
  QKeyEvent event(QEvent::KeyRelease, Qt::Key_A, Qt::NoModifier, QStringLiteral("a"));
  QApplication::sendEvent(&control, &event);
}

void PressKey(QWidget& control) {
  QKeyEvent event(QEvent::KeyPress, Qt::Key_Shift, Qt::NoModifier);
  QApplication::sendEvent(&control, &event);
}

// A test of either dialog names its boxes; both kinds of box have a text.
std::string TextOf(const QWidget& form, const char* name) {
  if (const auto* line = form.findChild<QLineEdit*>(QLatin1String(name))) return FromQt(line->text());
  return Find<TextBox>(form, name).Text();
}

void Type(const QWidget& form, const char* name, const char* text) {
  if (auto* line = form.findChild<QLineEdit*>(QLatin1String(name))) {
    line->setText(QLatin1String(text));
  } else {
    Find<TextBox>(form, name).setPlainText(QLatin1String(text));
  }
}

struct TemplateBox {
  const char* box;
  const char* preview;
  const char* key;
  std::string& (*field)(PageOptions&);
  const char* defaultPreview;
};

const TemplateBox kTitleBoxes[] = {
    {"txtIndex_html", "txtPrevIndex", "index_html",
     [](PageOptions& options) -> std::string& { return options.frmPAgeTitles.txtIndex_html; },
     "Read the Small Bible Online."},
    {"txtPageTitles", "txtPrevOther", "PageTitles",
     [](PageOptions& options) -> std::string& { return options.frmPAgeTitles.txtPageTitles; },
     "FREE Online Small Bible. Book1 Chapter 1:1-3."},
};

const TemplateBox kMetaBoxes[] = {
    {"txtKeywordsI", "txtKeywordsOKI", "KeywordsI",
     [](PageOptions& options) -> std::string& { return options.frmKeywords.txtKeywordsI; },
     "Small Bible, Online Bible, Versalia, Folionet, Free Online Bible, Free Bible, Christian literature, how to know "
     "Jesus, Christian Bible, Holy Scripture, God's Word"},
    {"txtDescriptionI", "txtDescriptionOKI", "DescriptionI",
     [](PageOptions& options) -> std::string& { return options.frmKeywords.txtDescriptionI; },
     "Read the Small Bible Online or make your own for your Website or PC. Click on link at bottom of page to find out "
     "how..."},
    {"txtKeyWords", "txtKeyWordsOK", "Keywords",
     [](PageOptions& options) -> std::string& { return options.frmKeywords.txtKeyWords; },
     "Small Bible Book1 1:1-3, Online Bible, Versalia, Folionet, Free Small Bible Online Bible, Free Small Bible "
     "Bible, Christian literature, how to know Jesus, Christian Bible, Holy Scripture, God's Word"},
    {"txtDescription", "txtDescriptionOK", "Description",
     [](PageOptions& options) -> std::string& { return options.frmKeywords.txtDescription; },
     "Read the Small Bible Book1 1:1-3 Online or make your own for your Website or PC. Click on link at bottom of page "
     "to find out how..."},
};

template <typename Form, typename Boxes>
void CheckPreviewsFollowKeyReleases(const Boxes& boxes) {
  DialogBench bench;
  Form form(bench.State());
  form.LoadForm();
  for (const TemplateBox& c : boxes) EXPECT_EQ(TextOf(form, c.preview), "") << c.preview;
  ReleaseKey(Find<QWidget>(form, "cmdClose"));
  for (const TemplateBox& c : boxes) EXPECT_EQ(TextOf(form, c.preview), c.defaultPreview) << c.preview;
  for (const TemplateBox& c : boxes) {
    Type(form, c.box, "%bible%|%bk%|%ch%|%vs%|%BK%");
    ReleaseKey(Find<QWidget>(form, c.box));
    EXPECT_EQ(TextOf(form, c.preview), "Small Bible|Book1|1|1-3|%BK%") << c.preview;
    EXPECT_EQ(bench.Stored(c.key), "<missing>") << "a key saves nothing";
  }
}

TEST(TemplatesTest, PreviewsFollowKeyReleases) {
  CheckPreviewsFollowKeyReleases<frmPAgeTitles>(kTitleBoxes);
  CheckPreviewsFollowKeyReleases<frmKeywords>(kMetaBoxes);
}

template <typename Form, typename Boxes>
void CheckSaving(const Boxes& boxes, bool checkSaves) {
  DialogBench bench;
  Form form(bench.State());
  form.LoadForm();
  form.show();
  for (const TemplateBox& c : boxes) {
    Type(form, c.box, "typed");
    EXPECT_EQ(c.field(bench.State().options), "typed") << "a compile uses what stands in " << c.box;
  }
  form.close();
  EXPECT_FALSE(form.isVisible());
  for (const TemplateBox& c : boxes) EXPECT_EQ(bench.Stored(c.key), "<missing>") << c.key;
  Click(form, "cmdCheck");
  for (const TemplateBox& c : boxes) EXPECT_EQ(bench.Stored(c.key), checkSaves ? "typed" : "<missing>") << c.key;
  for (const TemplateBox& c : boxes) Type(form, c.box, "");
  form.show();
  Click(form, "cmdClose");
  EXPECT_FALSE(form.isVisible());
  for (const TemplateBox& c : boxes) EXPECT_EQ(bench.Stored(c.key), "") << "an empty text is stored as one";

  bench.StartAgain();
  Form again(bench.State());
  again.LoadForm();
  for (const TemplateBox& c : boxes) EXPECT_EQ(TextOf(again, c.box), "") << c.box;
}

TEST(TemplatesTest, TitlesAreSavedByPreviewAndClose) { CheckSaving<frmPAgeTitles>(kTitleBoxes, true); }

TEST(TemplatesTest, MetaTextsAreSavedByCloseOnly) { CheckSaving<frmKeywords>(kMetaBoxes, false); }

// Keys released one after the other in a box that keeps them and in one that leaves them to the form around it.
TEST(TemplatesTest, EveryReleaseRefreshesOnce) {
  QDialog form;
  QWidget* controls[] = {new QLineEdit(&form), new QWidget(new QWidget(&form)), &form};
  int refreshes = 0;
  new KeyReleases(form, [&] { return ++refreshes > 0; });
  for (QWidget* control : controls) {
    refreshes = 0;
    for (int i = 0; i < 3; ++i) ReleaseKey(*control);
    EXPECT_EQ(refreshes, 3) << control->metaObject()->className();
  }
}

// A title that holds its own word never ends. Each failing preview keeps its text, and the release of the key that
// closed the report does not bring it up again.
TEST(TemplatesTest, AFailedPreviewKeepsItsText) {
  DialogBench bench;
  frmPAgeTitles form(bench.State());
  form.LoadForm();
  ReleaseKey(form);
  bench.State().startBookText = "%bk%";
  ReleaseKey(Find<QWidget>(form, "txtPageTitles"));
  ReleaseKey(Find<QWidget>(form, "txtPageTitles"));
  EXPECT_EQ(bench.ui.log, std::vector<std::string>{"report Build Titles"});
  EXPECT_EQ(TextOf(form, "txtPrevOther"), kTitleBoxes[1].defaultPreview);
  PressKey(Find<QWidget>(form, "txtPageTitles"));
  ReleaseKey(Find<QWidget>(form, "txtPageTitles"));
  EXPECT_EQ(bench.ui.reports.size(), 2U);
}

TEST(TemplatesTest, AFailedSaveIsReported) {
  DialogBench bench;
  frmPAgeTitles titles(bench.State());
  frmKeywords meta(bench.State());
  bench.BlockSettings();
  Click(titles, "cmdCheck");
  bench.State().saveFailureTold = false;
  Click(meta, "cmdClose");
  EXPECT_EQ(bench.ui.log, (std::vector<std::string>{"report SaveTitles", "report SaveMETA"}));
}

}  // namespace
}  // namespace folionet
