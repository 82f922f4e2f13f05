#include "frmErr.h"

#include <QApplication>
#include <QFontDatabase>

#include "HelpTopics.h"
#include "QtText.h"
#include "ui_frmErr.h"

namespace folionet {

frmErr::frmErr(QWidget* parent) : QDialog(parent), m_ui(std::make_unique<Ui::frmErr>()) {
  m_ui->setupUi(this);
  OpenHelpByKey(*this);
  // The labels of the report line up in one column only in a font of one width.
  QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  font.setFamilies(QStringList{QStringLiteral("Fixedsys")} << font.families());
  font.setStyleHint(QFont::Monospace);
  m_ui->txtErr->setFont(font);
  connect(m_ui->cmdClose, &QPushButton::clicked, this, &frmErr::hide);
  QApplication::beep();
  QApplication::beep();
}

frmErr::~frmErr() = default;

void frmErr::ShowReport(const std::string& text) {
  m_ui->txtErr->setPlainText(ToQtLines(text));
  m_ui->cmdClose->setFocus();
  exec();
}

}  // namespace folionet
