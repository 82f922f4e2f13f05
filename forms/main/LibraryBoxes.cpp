#include "LibraryBoxes.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QInputDialog>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

#include "PageEncoding.h"
#include "QtText.h"
#include "StoredSettings.h"
#include "frmImport.h"

namespace folionet {
namespace {

// A folder is entered with the separator that it must end in.
void Browse(QInputDialog& dialog) {
  const QString folder = QFileDialog::getExistingDirectory(&dialog, dialog.windowTitle(), QDir::homePath());
  if (!folder.isEmpty()) dialog.setTextValue(folder.endsWith(QLatin1Char('/')) ? folder : folder + QLatin1Char('/'));
}

void AddExplanation(QInputDialog& dialog) {
  auto* about =
      new QLabel(QObject::tr("Versalia is the program that installs the translations which Folionet turns into "
                             "sites. Without it, import a Bible text that you have: Folionet keeps it in a library "
                             "of its own."),
                 &dialog);
  about->setObjectName(QStringLiteral("lblAbout"));
  about->setWordWrap(true);
  if (auto* layout = qobject_cast<QVBoxLayout*>(dialog.layout())) layout->insertWidget(layout->count() - 1, about);
}

}  // namespace

std::string LibraryBoxes::Ask(const InputBox& box, QWidget* owner) {
  const bool isModules = box.folder == LibraryFolder::kModules;
  const auto answer = [&] { return isModules ? m_imported + "Modules/" : m_imported; };
  if (!m_imported.empty()) return answer();
  QInputDialog dialog(owner);
  dialog.setWindowTitle(ToQt(box.title));
  dialog.setLabelText(ToQt(box.prompt));
  dialog.setTextValue(ToQt(box.defaultText));
  dialog.sizeHint();  // makes its controls
  auto* buttons = dialog.findChild<QDialogButtonBox*>();
  if (buttons == nullptr) return {};
  QPushButton* browse = buttons->addButton(QObject::tr("&Browse..."), QDialogButtonBox::ActionRole);
  browse->setObjectName(QStringLiteral("cmdBrowse"));
  QObject::connect(browse, &QPushButton::clicked, &dialog, [&dialog] { Browse(dialog); });
  QPushButton* import = buttons->addButton(QObject::tr("&Import a text..."), QDialogButtonBox::ActionRole);
  import->setObjectName(QStringLiteral("cmdImport"));
  QObject::connect(import, &QPushButton::clicked, &dialog, [this, &dialog] {
    frmImport form(m_ui, StoredLanguage(StoredSettings(StoredSettings::DefaultFolder())), &dialog);
    QObject::connect(&form, &frmImport::Imported, &dialog, [&](const std::string& folder) {
      m_imported = folder;
      dialog.accept();
    });
    form.resize(form.size().boundedTo(dialog.screen()->availableSize()));
    form.exec();
  });
  AddExplanation(dialog);
  // Both are as wide, so that they stand in one place.
  constexpr int kColumns = 72;
  dialog.resize(kColumns * dialog.fontMetrics().averageCharWidth(), dialog.sizeHint().height());
  const bool isAccepted = dialog.exec() == QDialog::Accepted;
  if (!m_imported.empty()) return answer();
  if (!isAccepted) return {};
  // A path that was pasted may end in a line break.
  const std::string text = FromQt(dialog.textValue());
  return text.substr(0, text.find_first_of("\r\n"));
}

}  // namespace folionet
