#include "HelpWindow.h"

#include <QDialogButtonBox>
#include <QImage>
#include <QPushButton>
#include <QScreen>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextCursor>
#include <QVBoxLayout>
#include <algorithm>

// Outside of every namespace, as Qt needs it for resources of a library.
static void InitHelpResource() { Q_INIT_RESOURCE(help); }

namespace folionet {
namespace {

// Where what bears the name begins; at the start for no such name.
QTextCursor PlaceOf(QTextDocument& text, const QString& name) {
  QTextCursor place(&text);
  for (QTextBlock block = text.begin(); block.isValid() && !name.isEmpty(); block = block.next()) {
    for (QTextBlock::iterator part = block.begin(); !part.atEnd(); ++part) {
      if (!part.fragment().charFormat().anchorNames().contains(name)) continue;
      place.setPosition(part.fragment().position());
      return place;
    }
  }
  return place;
}

// Shows pictures no wider than the text should be, sharp on every screen.
class HelpPage : public QTextBrowser {
 public:
  using QTextBrowser::QTextBrowser;

  QVariant loadResource(int type, const QUrl& name) override {
    const QVariant found = QTextBrowser::loadResource(type, name);
    if (type != QTextDocument::ImageResource) return found;
    constexpr int kWidest = 640;
    QImage picture = QImage::fromData(found.toByteArray());
    const int width = qRound(std::min(picture.width(), kWidest) * devicePixelRatioF());
    picture = picture.scaledToWidth(width, Qt::SmoothTransformation);
    picture.setDevicePixelRatio(devicePixelRatioF());
    return picture;
  }

 protected:
  // The keys go on from the place that is shown.
  void doSetSource(const QUrl& place, QTextDocument::ResourceType type) override {
    QTextBrowser::doSetSource(place, type);
    setTextCursor(PlaceOf(*document(), place.fragment()));
  }

  // Without a selection the links would be gone through from the first or the last one of all.
  bool focusNextPrevChild(bool next) override {
    const QTextCursor before = textCursor();
    if (before.hasSelection()) return QTextBrowser::focusNextPrevChild(next);
    QTextCursor beside = before;
    beside.movePosition(next ? QTextCursor::PreviousCharacter : QTextCursor::NextCharacter);
    beside.setPosition(before.position(), QTextCursor::KeepAnchor);
    setTextCursor(beside);
    const bool isDone = QTextBrowser::focusNextPrevChild(next);
    if (!textCursor().charFormat().isAnchor()) setTextCursor(before);
    return isDone;
  }
};

}  // namespace

HelpWindow::HelpWindow(QWidget* parent) : QDialog(parent), m_page(new HelpPage(this)) {
  InitHelpResource();
  constexpr QSize kSize(760, 560);
  constexpr QSize kAround(8, 60);  // of a frame and a title bar
  setObjectName(QStringLiteral("HelpWindow"));
  setWindowTitle(tr("Folionet Help"));
  resize(kSize.boundedTo(screen()->availableSize() - kAround));
  m_page->setObjectName(QStringLiteral("helpPage"));
  m_page->setAccessibleName(tr("Help"));
  m_page->setOpenExternalLinks(true);
  m_page->document()->setDefaultStyleSheet(QStringLiteral("pre { white-space: pre-wrap; }"));  // none scrolls sideways
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
  QPushButton* close = buttons->button(QDialogButtonBox::Close);
  close->setObjectName(QStringLiteral("cmdClose"));
  close->setText(tr("&Close"));
  QPushButton* contents = buttons->addButton(tr("C&ontents"), QDialogButtonBox::ActionRole);
  contents->setObjectName(QStringLiteral("cmdContents"));
  contents->setAutoDefault(false);
  connect(contents, &QPushButton::clicked, this, [this] { ShowTopic({}); });
  connect(buttons, &QDialogButtonBox::rejected, this, &HelpWindow::reject);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(m_page);
  layout->addWidget(buttons);
}

void HelpWindow::Open(QWidget& window, const QString& topic) {
  auto* help = window.findChild<HelpWindow*>(QString(), Qt::FindDirectChildrenOnly);
  if (help == nullptr) help = new HelpWindow(&window);
  help->ShowTopic(topic);
}

void HelpWindow::ShowTopic(const QString& topic) {
  show();
  raise();
  activateWindow();
  QUrl place(QStringLiteral("qrc:/help/") + tr("index.html", "the help in this language"));
  if (!topic.isEmpty()) place.setFragment(topic);
  m_page->setSource(place);
  m_page->setFocus();
}

}  // namespace folionet
