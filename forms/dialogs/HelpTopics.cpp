#include "HelpTopics.h"

#include <QAction>
#include <QDialog>
#include <map>

#include "HelpWindow.h"

namespace folionet {
namespace {

// What the help tells about a control, or about the innermost thing that it is in.
QString TopicOf(const QWidget* control) {
  static const std::map<QString, QString> topics{{"frmBible", "bible"},         {"frmLanguage", "language"},
                                                 {"frmOutput", "output"},       {"frmSample", "text"},
                                                 {"frmAlignment", "alignment"}, {"frmOptions", "options"},
                                                 {"frmDialogs", "details"},     {"frmPAgeTitles", "titles"},
                                                 {"frmKeywords", "meta"},       {"frmEffects", "effects"},
                                                 {"frmCustomHeader", "header"}, {"frmCustomizeFooter", "header"},
                                                 {"frmEncoding", "encoding"},   {"frmAddnew", "encoding"},
                                                 {"frmLinkToMAin", "link"},     {"frmBackground", "background"},
                                                 {"cmdCompile", "compile"},     {"cmdOpenIndex", "compile"},
                                                 {"cmdVerifySite", "compile"},  {"cmdHelp", "buttons"},
                                                 {"cmdRestoreAll", "buttons"},  {"cmdClose", "buttons"},
                                                 {"cmdPageTitles", "titles"},   {"cmdKeyWords", "meta"},
                                                 {"cmdEffects", "effects"},     {"cmdCustomHeader", "header"},
                                                 {"cmdCustomFooter", "header"}, {"cmdPageEncoding", "encoding"},
                                                 {"cmdLinkToMain", "link"},     {"frmErr", "report"},
                                                 {"cmdSite", "sites"},          {"frmImport", "import"},
                                                 {"cmdImport", "import"}};
  // The ways out of a dialog bear the names of the main form's.
  if (control != nullptr && qobject_cast<const QDialog*>(control->window()) != nullptr) control = control->window();
  for (; control != nullptr; control = control->parentWidget()) {
    const auto topic = topics.find(control->objectName());
    if (topic != topics.end()) return topic->second;
  }
  return {};
}

}  // namespace

void OpenHelpByKey(QWidget& window) {
  const QAction* help = window.addAction(QString(), QKeySequence(Qt::Key_F1));
  QObject::connect(help, &QAction::triggered, &window, [&window] {
    HelpWindow::Open(window, TopicOf(window.focusWidget() != nullptr ? window.focusWidget() : &window));
  });
}

}  // namespace folionet
