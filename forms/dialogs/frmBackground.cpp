#include "frmBackground.h"

#include <exception>

#include "Follow.h"
#include "OptionLoading.h"
#include "TrySave.h"
#include "ui_frmBackground.h"

namespace folionet {
namespace {

// The blanks around some patterns belong to the text.
constexpr char kImageFilter[] = "*.gif - Compuserve GIF|*.gif| *.bmp - Windows Bitmap| *.bmp | *.* - All Files| *.*";

std::string FileName(const std::string& path) { return path.substr(path.find_last_of("/\\") + 1); }

}  // namespace

frmBackground::frmBackground(AppState& state, QWidget* parent)
    : LoadedDialog(state.ui, parent),
      m_state(state),
      m_record(state.options.frmBackground),
      m_ui(std::make_unique<Ui::frmBackground>()) {
  m_ui->setupUi(this);
  LetContentScroll();
  Follow(m_ui->txtImagepath, m_record.txtImagepath);
  Follow(m_ui->chkWaterMark, m_record.chkWaterMark);
  connect(m_ui->chkWaterMark, &QCheckBox::clicked, this,
          [this] { TrySave(m_state, Procedure::kClickWaterMark, "WaterMark"); });
  connect(m_ui->cmdImageName, &QPushButton::clicked, this, &frmBackground::SelectImage);
  connect(m_ui->cmdClose, &QPushButton::clicked, this, [this] {
    SaveImage();
    hide();
  });
}

frmBackground::~frmBackground() = default;

void frmBackground::Load() { LoadOptions(m_state.store, OptionPart::kBackground, m_state.options); }

void frmBackground::ShowRecord() {
  m_ui->chkWaterMark->setChecked(m_record.chkWaterMark);
  m_ui->txtImagepath->setText(ToQt(m_record.txtImagepath));
}

// A chooser that was left gives the path of its last use, which is empty the first time and then empties the box.
void frmBackground::SelectImage() {
  try {
    m_chosenPath = m_state.ui.ChooseFile(kImageFilter, m_chosenPath);
  } catch (const std::exception&) {
    // What goes wrong in the chooser counts as leaving it.
  }
  m_ui->txtImagepath->setText(ToQt(FileName(m_chosenPath)));
  SaveImage();
}

void frmBackground::SaveImage() { TrySave(m_state, Procedure::kSaveBackImage, OptionPart::kBackground); }

}  // namespace folionet
