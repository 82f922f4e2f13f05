#include "HelpWindow.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QTextBrowser>
#include <QVBoxLayout>

// Outside of every namespace, as Qt needs it for resources of a library.
static void InitHelpResource() { Q_INIT_RESOURCE(help); }

namespace folionet {

HelpWindow::HelpWindow(QWidget* parent) : QDialog(parent), m_page(new QTextBrowser(this)) {
  InitHelpResource();
  setObjectName(QStringLiteral("HelpWindow"));
  setWindowTitle(tr("Folionet Help"));
  resize(720, 560);
  m_page->setObjectName(QStringLiteral("helpPage"));
  m_page->setAccessibleName(tr("Help"));
  m_page->setOpenExternalLinks(true);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
  buttons->button(QDialogButtonBox::Close)->setText(tr("&Close"));
  QPushButton* contents = buttons->addButton(tr("C&ontents"), QDialogButtonBox::ActionRole);
  contents->setAutoDefault(false);
  connect(contents, &QPushButton::clicked, this, &HelpWindow::ShowContents);
  connect(buttons, &QDialogButtonBox::rejected, this, &HelpWindow::reject);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(m_page);
  layout->addWidget(buttons);
}

void HelpWindow::ShowContents() {
  m_page->setSource(QUrl(QStringLiteral("qrc:/help/index.html")));
  m_page->moveCursor(QTextCursor::Start);
  m_page->setFocus();
  show();
  raise();
  activateWindow();
}

}  // namespace folionet
