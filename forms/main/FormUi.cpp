#include "FormUi.h"

#include <QApplication>
#include <QCheckBox>
#include <QColorDialog>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontDatabase>
#include <QFontDialog>
#include <QFontInfo>
#include <QGridLayout>
#include <QGroupBox>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QStandardPaths>
#include <QUrl>
#include <algorithm>
#include <climits>
#include <cstdlib>

#include "BuildInfo.h"
#include "ErrorReport.h"
#include "ProgramFolder.h"
#include "QtText.h"
#include "frmErr.h"
#include "frmMain.h"

namespace folionet {
namespace {

QMessageBox::Icon IconOf(MessageIcon icon) {
  switch (icon) {
    case MessageIcon::kWarning:
      return QMessageBox::Warning;
    case MessageIcon::kCritical:
      return QMessageBox::Critical;
    case MessageIcon::kInformation:
      break;
  }
  return QMessageBox::Information;
}

// As wide as Qt lets the text of a box be: it cuts what is wider.
int WidestText(const QWidget& box) {
  constexpr int kWidest = 800;
  constexpr int kBeside = 120;  // the icon and the margins
  constexpr int kSmallScreen = 1024;
  constexpr int kLeftFree = 480;
  const int screen = box.screen()->availableSize().width();
  return std::min(kWidest, (screen <= kSmallScreen ? screen : screen - kLeftFree) - kBeside);
}

// Gives the text a bar where the screen is not high enough for it and the buttons.
void KeepToScreen(QMessageBox& box, QLabel& text, QGridLayout& grid) {
  constexpr int kAround = 140;  // a title bar, the buttons and the margins
  const int highest = box.screen()->availableSize().height() - kAround;
  const QSize size(text.minimumWidth(), text.heightForWidth(text.minimumWidth()));
  if (size.height() <= highest) return;
  auto* scroll = new QScrollArea(&box);
  scroll->setObjectName(QStringLiteral("scrMessage"));
  scroll->setFrameShape(QFrame::NoFrame);
  scroll->setWidgetResizable(true);
  scroll->setFixedSize(size.width() + scroll->verticalScrollBar()->sizeHint().width(), highest);
  delete grid.replaceWidget(&text, scroll);
  scroll->setWidget(&text);
}

void PrepareBox(QMessageBox& box, const std::string& title, const std::string& text) {
  box.setWindowTitle(ToQt(title));
  box.setTextFormat(Qt::PlainText);
  box.setText(ToQtLines(text));
  QLabel* label = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
  auto* grid = qobject_cast<QGridLayout*>(box.layout());
  if (label == nullptr || grid == nullptr) return;
  // Lines of our own stay lines, which Qt would break far earlier; one with a long path in it may wrap.
  label->setMinimumWidth(std::min(label->sizeHint().width(), WidestText(box)));
  label->setWordWrap(true);
  KeepToScreen(box, *label, *grid);
  constexpr int kButtons = 180;  // of the title bar, which does not widen a window
  const int width = std::min(WidestText(box), label->fontMetrics().horizontalAdvance(box.windowTitle()) + kButtons);
  grid->addItem(new QSpacerItem(width, 0), grid->rowCount(), 0, 1, grid->columnCount());
}

// A page's text is neither struck out nor underlined. Only Qt's own chooser lets them be left out.
void HideEffects(QFontDialog& dialog) {
  dialog.setOption(QFontDialog::DontUseNativeDialog);
  constexpr int kSampleLines = 5;  // the sample had its height from what is hidden
  for (QGroupBox* group : dialog.findChildren<QGroupBox*>()) {
    group->setHidden(group->findChild<QCheckBox*>() != nullptr);
    group->setMinimumHeight(kSampleLines * group->fontMetrics().height());
  }
}

// The font that a style's text is shown in here, which may be another than the one named, with its own name of that
// style: the dialog shows a family's first style, be it an italic one, for a name that the family does not have.
QFont StandIn(const SampleText& sample) {
  QFont font(ToQt(sample.FontName));
  if (sample.FontSize > 0) font.setPointSizeF(sample.FontSize);
  font.setBold(sample.FontBold);
  font.setItalic(sample.FontItalic);
  const QString family = QFontInfo(font).family();
  font.setFamilies({family});
  const int weight = sample.FontBold ? QFont::Bold : QFont::Normal;
  int nearest = INT_MAX;
  for (const QString& style : QFontDatabase::styles(family)) {
    const int distance = std::abs(QFontDatabase::weight(family, style) - weight);
    if (QFontDatabase::italic(family, style) != sample.FontItalic || distance >= nearest) continue;
    nearest = distance;
    font.setStyleName(style);
  }
  return font;
}

// Where a chooser of pictures opens: at the one that was chosen last, else where a person keeps them.
QString PictureStart(const QString& previous) {
  if (!previous.isEmpty() && QFileInfo(previous).absoluteDir().exists()) return previous;
  const QString pictures = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
  return QFileInfo(pictures).isDir() ? pictures : QDir::homePath();
}

// The filters of an open-file dialog from "description|pattern|description|pattern". Blanks around a pattern do not
// count.
QString FileDialogFilter(const std::string& filter) {
  const QStringList parts = ToQt(filter).split(QLatin1Char('|'));
  QStringList filters;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    const QString pattern = parts[i + 1].trimmed();
    // Qt takes what stands in the last brackets as the patterns.
    filters << parts[i].trimmed() + QStringLiteral(" (") + pattern + QStringLiteral(")");
  }
  return filters.join(QStringLiteral(";;"));
}

// Qt gives a typed name no suffix when the folder in which the program was started has a folder of that name.
class SaveDialog : public QFileDialog {
 public:
  using QFileDialog::QFileDialog;

 protected:
  void accept() override {
    auto* const typed = findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));  // none in a dialog of the desktop's
    if (typed != nullptr && !typed->text().isEmpty() && QFileInfo(typed->text()).isDir()) {
      typed->setText(directory().absoluteFilePath(typed->text()));
    }
    QFileDialog::accept();
  }
};

}  // namespace

FormUi::FormUi() : m_libraryBoxes(*this) {}
FormUi::~FormUi() = default;

QWidget* FormUi::Owner() const {
  if (QWidget* modal = QApplication::activeModalWidget()) return modal;
  return m_form != nullptr && m_form->isVisible() ? m_form : nullptr;
}

void FormUi::ShowMessage(const Message& message) {
  QMessageBox box(IconOf(message.icon), {}, {}, QMessageBox::Ok, Owner());
  PrepareBox(box, message.title, message.text);
  box.exec();
}

bool FormUi::AskYesNo(const std::string& title, const std::string& text) {
  QMessageBox box(QMessageBox::Question, {}, {}, QMessageBox::Yes | QMessageBox::No, Owner());
  PrepareBox(box, title, text);
  box.setDefaultButton(QMessageBox::No);
  return box.exec() == QMessageBox::Yes;
}

std::optional<std::string> FormUi::AskText(const InputBox& box) {
  if (box.folder != LibraryFolder::kNone) return m_libraryBoxes.Ask(box, Owner());
  QInputDialog dialog(Owner());
  dialog.setWindowTitle(ToQt(box.title));
  dialog.setLabelText(ToQt(box.prompt));
  dialog.setTextValue(ToQt(box.defaultText));
  // Wide enough for the default, its frame and some typing.
  const QString room = ToQt(box.defaultText) + QString(12, QLatin1Char('M'));
  dialog.resize(dialog.fontMetrics().horizontalAdvance(room), dialog.sizeHint().height());
  return dialog.exec() == QDialog::Accepted ? FromQt(dialog.textValue()) : std::string();
}

void FormUi::ShowErrorReport(const ErrorReport& report) {
  if (!m_errorReport) m_errorReport = std::make_unique<frmErr>();
  m_errorReport->ShowReport(BuildErrorReport(report, ExecutableFolder()));
}

void FormUi::SetPanel(int panel, std::string_view text) {
  if (m_form != nullptr) m_form->ShowPanel(panel, text);
}

void FormUi::FocusControl(std::string_view name) {
  if (m_form != nullptr) m_form->FocusControl(name);
}

std::optional<Colour> FormUi::ChooseColour(Colour initial) {
  const QColor chosen = QColorDialog::getColor(ToQt(initial), Owner());
  return chosen.isValid() ? std::optional(FromQt(chosen)) : std::nullopt;
}

std::optional<SampleText> FormUi::ChooseFont(const SampleText& initial) {
  QFontDialog dialog(StandIn(initial), Owner());
  HideEffects(dialog);
  // What the dialog shows at first may be another family, style or size than the text has: of those that are not
  // installed or that a font lacks, it shows the next best. Only what a person changes is taken, be it by coming back
  // to what was shown.
  QFont last = dialog.currentFont();
  bool isFamilyChosen = false;
  bool isStyleChosen = false;
  bool isSizeChosen = false;
  const auto note = [&](const QFont& current) {
    if (current.family() != last.family()) {
      isFamilyChosen = true;
    } else if (current.bold() != last.bold() || current.italic() != last.italic()) {
      isStyleChosen = true;
    }
    isSizeChosen = isSizeChosen || current.pointSizeF() != last.pointSizeF();
    last = current;
  };
  QObject::connect(&dialog, &QFontDialog::currentFontChanged, &dialog, note);
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  SampleText chosen = initial;
  if (isFamilyChosen) chosen.FontName = FromQt(last.family());
  if (isStyleChosen) chosen.FontBold = last.bold();
  if (isStyleChosen) chosen.FontItalic = last.italic();
  if (isSizeChosen) chosen.FontSize = last.pointSizeF();
  return chosen;
}

std::string FormUi::ChooseFile(const std::string& filter, const std::string& previous) {
  const QString chosen =
      QFileDialog::getOpenFileName(Owner(), {}, PictureStart(ToQt(previous)), FileDialogFilter(filter));
  return chosen.isEmpty() ? previous : FromQt(chosen);
}

std::string FormUi::ChooseFileToSave(const std::string& name, const std::string& suffix, const std::string& initial) {
  SaveDialog dialog(Owner(), {}, ToQt(initial), FileDialogFilter(name + "|*." + suffix));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix(ToQt(suffix));
  return dialog.exec() == QDialog::Accepted ? FromQt(dialog.selectedFiles().value(0)) : std::string();
}

std::string FormUi::ChooseFolder(const std::string& initial, const std::string& title) {
  const QString start = initial.empty() ? QDir::homePath() : ToQt(initial);
  const QString chosen = QFileDialog::getExistingDirectory(Owner(), ToQt(title), start);
  return chosen.isEmpty() ? initial : FromQt(chosen);
}

void FormUi::ShowPage(const std::string& path) {
  if (QDesktopServices::openUrl(QUrl::fromLocalFile(ToQt(path)))) return;
  ShowMessage({MessageIcon::kWarning, kApplicationTitle,
               FromQt(QObject::tr("No browser could be started. The page is:")) + "\r\n" + path});
}

}  // namespace folionet
