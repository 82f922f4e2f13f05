#include <gtest/gtest.h>

#include <QCheckBox>
#include <QLineEdit>
#include <stdexcept>

#include "DialogBench.h"
#include "QtText.h"
#include "RunTimeError.h"
#include "frmBackground.h"

namespace folionet {
namespace {

std::string ImageName(const frmBackground& form) { return FromQt(Find<QLineEdit>(form, "txtImagepath").text()); }

TEST(BackgroundTest, TheChosenImageIsNamedWithoutItsFolderAndSavedAtOnce) {
  const struct {
    const char* path;
    const char* name;
  } cases[] = {{"C:\\Pictures\\paper.gif", "paper.gif"},
               {"/home/me/my pictures/paper.gif", "paper.gif"},
               {"paper.gif", "paper.gif"}};
  for (const auto& c : cases) {
    DialogBench bench;
    frmBackground form(bench.State());
    form.LoadForm();
    EXPECT_EQ(ImageName(form), "No Image Selected");
    bench.ui.files = {c.path};
    Click(form, "cmdImageName");
    EXPECT_EQ(ImageName(form), c.name);
    EXPECT_EQ(bench.Stored("BackImage"), c.name);
    EXPECT_EQ(bench.ui.fileFilters.at(0),
              "*.gif - Compuserve GIF|*.gif| *.bmp - Windows Bitmap| *.bmp | *.* - All Files| *.*");
  }
}

TEST(BackgroundTest, LeavingTheChooserGivesItsLastPath) {
  DialogBench bench;
  frmBackground form(bench.State());
  form.LoadForm();
  Click(form, "cmdImageName");
  EXPECT_EQ(ImageName(form), "");
  EXPECT_EQ(bench.Stored("BackImage"), "");
  bench.ui.files = {"/pictures/sky.gif"};
  Click(form, "cmdImageName");
  Find<QLineEdit>(form, "txtImagepath").setText("typed.gif");
  Click(form, "cmdImageName");
  EXPECT_EQ(ImageName(form), "sky.gif");
}

TEST(BackgroundTest, ATypedNameIsUsedAtOnceAndSavedAtClose) {
  DialogBench bench;
  frmBackground form(bench.State());
  form.LoadForm();
  form.show();
  Find<QLineEdit>(form, "txtImagepath").setText("img\\paper.gif");
  EXPECT_EQ(bench.State().options.frmBackground.txtImagepath, "img\\paper.gif");
  form.close();
  EXPECT_EQ(bench.Stored("BackImage"), "<missing>");
  form.show();
  Click(form, "cmdClose");
  EXPECT_EQ(bench.Stored("BackImage"), "img\\paper.gif");
  EXPECT_FALSE(form.isVisible());
}

TEST(BackgroundTest, TheWatermarkIsSavedAtOnce) {
  DialogBench bench;
  frmBackground form(bench.State());
  form.LoadForm();
  for (const bool isOn : {true, false}) {
    Click(form, "chkWaterMark");
    EXPECT_EQ(bench.Stored("WaterMark"), isOn ? "1" : "0");
    EXPECT_EQ(bench.State().options.frmBackground.chkWaterMark, isOn);
  }
}

// A person whose file chooser breaks down.
class BrokenChooserUi : public ScriptedUi {
 public:
  std::string ChooseFile(const std::string& /*filter*/, const std::string& /*previous*/) override {
    throw std::runtime_error("no chooser");
  }
};

TEST(BackgroundTest, FailuresOfTheChooserAreIgnored) {
  DialogBench bench;
  BrokenChooserUi ui;
  AppState state{bench.State().store, ui, bench.ProgramFolder()};
  frmBackground form(state);
  form.LoadForm();
  Click(form, "cmdImageName");
  EXPECT_EQ(ImageName(form), "");
  EXPECT_TRUE(ui.log.empty());
}

TEST(BackgroundTest, AFailedSaveIsReported) {
  DialogBench bench;
  frmBackground form(bench.State());
  bench.BlockSettings();
  Click(form, "chkWaterMark");
  bench.State().saveFailureTold = false;
  Click(form, "cmdClose");
  EXPECT_EQ(bench.ui.log, (std::vector<std::string>{"report chkWaterMark_Click", "report SaveBackImage"}));
}

}  // namespace
}  // namespace folionet
