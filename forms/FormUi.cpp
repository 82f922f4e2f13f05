#include "FormUi.h"

#include <QApplication>
#include <QColorDialog>
#include <QDesktopServices>
#include <QFileDialog>
#include <QFontDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QUrl>

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

void PrepareBox(QMessageBox& box, const std::string& title, const std::string& text) {
  box.setWindowTitle(ToQt(title));
  box.setTextFormat(Qt::PlainText);
  box.setText(ToQtLines(text));
}

}  // namespace

std::string FileDialogFilter(const std::string& filter) {
  const QStringList parts = ToQt(filter).split(QLatin1Char('|'));
  QStringList filters;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    const QString pattern = parts[i + 1].trimmed();
    // Qt takes what stands in the last brackets as the patterns.
    filters << parts[i].trimmed() + QStringLiteral(" (") + pattern + QStringLiteral(")");
  }
  return FromQt(filters.join(QStringLiteral(";;")));
}

FormUi::FormUi() = default;
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
  box.setEscapeButton(QMessageBox::No);
  return box.exec() == QMessageBox::Yes;
}

std::optional<std::string> FormUi::AskText(const InputBox& box) {
  bool isGiven = false;
  const QString text = QInputDialog::getText(Owner(), ToQt(box.title), ToQt(box.prompt), QLineEdit::Normal,
                                             ToQt(box.defaultText), &isGiven);
  return isGiven ? FromQt(text) : std::string();
}

void FormUi::ShowErrorReport(int errorNumber, std::string_view moduleLabel, const std::string& extraInfo) {
  if (!m_errorReport) m_errorReport = std::make_unique<frmErr>();
  m_errorReport->ShowReport(BuildErrorReport(errorNumber, moduleLabel, extraInfo, ExecutableFolder()));
}

void FormUi::SetPanel(int panel, std::string_view text) {
  if (m_form != nullptr) m_form->ShowPanel(panel, text);
}

void FormUi::FocusControl(std::string_view name) {
  if (m_form != nullptr) m_form->FocusControl(name);
}

Colour FormUi::ChooseColour(Colour initial) {
  const QColor chosen = QColorDialog::getColor(ToQt(initial), Owner());
  return chosen.isValid() ? FromQt(chosen) : initial;
}

SampleText FormUi::ChooseFont(const SampleText& initial) {
  QFont font(ToQt(initial.FontName));
  if (initial.FontSize > 0) font.setPointSizeF(initial.FontSize);
  font.setBold(initial.FontBold);
  font.setItalic(initial.FontItalic);
  bool isChosen = false;
  font = QFontDialog::getFont(&isChosen, font, Owner());
  if (!isChosen) return initial;
  SampleText chosen = initial;
  chosen.FontName = FromQt(font.family());
  chosen.FontSize = font.pointSizeF();
  chosen.FontBold = font.bold();
  chosen.FontItalic = font.italic();
  return chosen;
}

std::string FormUi::ChooseFile(const std::string& filter, const std::string& previous) {
  const QString chosen = QFileDialog::getOpenFileName(Owner(), {}, ToQt(previous), ToQt(FileDialogFilter(filter)));
  return chosen.isEmpty() ? previous : FromQt(chosen);
}

std::string FormUi::ChooseFolder(const std::string& initial) {
  const QString start = initial.empty() ? QDir::homePath() : ToQt(initial);
  const QString chosen = QFileDialog::getExistingDirectory(Owner(), QObject::tr("Choose the Output Path"), start);
  return chosen.isEmpty() ? initial : FromQt(chosen);
}

void FormUi::ShowPage(const std::string& path) {
  if (QDesktopServices::openUrl(QUrl::fromLocalFile(ToQt(path)))) return;
  ShowMessage({MessageIcon::kWarning, kApplicationTitle,
               FromQt(QObject::tr("No browser could be started. The page is:")) + "\r\n" + path});
}

}  // namespace folionet
