#include "HelpWindow.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QTextBrowser>
#include <QVBoxLayout>
#include <map>

// Outside of every namespace, as Qt needs it for resources of a library.
static void InitHelpResource() { Q_INIT_RESOURCE(help); }

namespace folionet {

HelpWindow::HelpWindow(QWidget* parent) : QDialog(parent), m_page(new QTextBrowser(this)) {
  InitHelpResource();
  setObjectName(QStringLiteral("HelpWindow"));
  setWindowTitle(tr("Folionet Help"));
  setMinimumSize(200, 150);
  resize(720, 460);
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

void HelpWindow::ShowTopicOf(const QWidget* control) {
  static const std::map<QString, QString> topics{
      {"frmBible", "bible"},        {"frmLanguage", "language"},   {"frmOutput", "output"},
      {"frmSample", "text"},        {"frmAlignment", "alignment"}, {"frmOptions", "options"},
      {"frmDialogs", "details"},    {"frmPAgeTitles", "titles"},   {"frmKeywords", "meta"},
      {"frmEffects", "effects"},    {"frmCustomHeader", "header"}, {"frmCustomizeFooter", "header"},
      {"frmEncoding", "encoding"},  {"frmAddnew", "encoding"},     {"frmImport", "import"},
      {"cmdImport", "import"},      {"frmLinkToMAin", "link"},     {"frmBackground", "background"},
      {"cmdCompile", "compile"},    {"cmdOpenIndex", "compile"},   {"cmdVerifySite", "compile"},
      {"cmdRestoreAll", "buttons"}, {"cmdClose", "buttons"}};
  for (; control != nullptr; control = control->parentWidget()) {
    const auto topic = topics.find(control->objectName());
    if (topic != topics.end()) return ShowTopic(topic->second);
  }
  ShowTopic({});
}

void HelpWindow::ShowTopic(const QString& anchor) {
  m_page->setSource(QUrl(QStringLiteral("qrc:/help/index.html")));
  m_page->setFocus();
  show();
  raise();
  activateWindow();
  if (anchor.isEmpty()) {
    m_page->moveCursor(QTextCursor::Start);
  } else {
    m_page->scrollToAnchor(anchor);
  }
}

}  // namespace folionet
