#include "FormMemory.h"

#include <QEvent>
#include <QScreen>
#include <QStyle>
#include <QWidget>
#include <algorithm>
#include <string_view>

#include "QtText.h"
#include "RunTimeError.h"

namespace folionet {
namespace {

constexpr char kFile[] = "FolionetForms";
constexpr char kSection[] = "Forms";
constexpr char kPlaced[] = "isPlaced";
constexpr qsizetype kMostRecent = 5;
constexpr qsizetype kMostSites = 20;

qsizetype Most(const char* kind) { return kind == std::string_view(FormMemory::kSites) ? kMostSites : kMostRecent; }

// Makes a window no larger than the screen has room for, and moves it there.
void FitToScreen(QWidget& window) {
  if ((window.windowState() & (Qt::WindowMaximized | Qt::WindowFullScreen)) != 0) return;
  const int title = window.style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, &window);
  constexpr int kFrame = 4;
  const QRect room = window.screen()->availableGeometry().adjusted(kFrame, title + kFrame, -kFrame, -kFrame);
  const QSize wanted = window.testAttribute(Qt::WA_Resized) ? window.size() : window.sizeHint();
  if (wanted.boundedTo(room.size()) != window.size()) window.resize(wanted.boundedTo(room.size()));
  if (!window.testAttribute(Qt::WA_Moved)) return;
  const QPoint place(std::clamp(window.x(), room.left(), std::max(room.left(), room.right() - window.width())),
                     std::clamp(window.y(), room.top(), std::max(room.top(), room.bottom() - window.height())));
  if (place != window.pos()) window.move(place);
}

}  // namespace

QStringList FormMemory::Recent(const char* kind) const {
  return Text(QString::fromLatin1(kind)).split(QLatin1Char('\n'), Qt::SkipEmptyParts).mid(0, Most(kind));
}

void FormMemory::Add(const char* kind, const QString& text) {
  if (text.isEmpty() || text.contains(QLatin1Char('\n'))) return;
  QStringList texts = Recent(kind);
  texts.removeAll(text);
  texts.prepend(text);
  m_changed[QString::fromLatin1(kind)] = texts.mid(0, Most(kind)).join(QLatin1Char('\n'));
}

void FormMemory::KeepPlace(QWidget& window) { window.installEventFilter(this); }

void FormMemory::Save() {
  for (const auto& [key, text] : m_changed) {
    try {
      m_store.SaveSetting(kFile, kSection, FromQt(key), FromQt(text));
    } catch (const RunTimeError&) {
      return;  // of the options in the same folder it is told
    }
  }
  m_changed.clear();
}

void FormMemory::Forget() {
  m_changed.clear();
  try {
    m_store.DeleteSetting(kFile);
  } catch (const RunTimeError&) {
    // The places of windows are no settings, whose removal was told.
  }
}

bool FormMemory::eventFilter(QObject* watched, QEvent* event) {
  auto* window = qobject_cast<QWidget*>(watched);
  if (window != nullptr && event->type() == QEvent::Show && !window->property(kPlaced).toBool()) {
    window->setProperty(kPlaced, true);
    Place(*window);
  }
  const bool isHidden = event->type() == QEvent::Hide && !event->spontaneous();
  if (window != nullptr && (isHidden || (event->type() == QEvent::Close && window->isVisible()))) {
    m_changed[window->objectName()] = QString::fromLatin1(window->saveGeometry().toBase64());
  }
  return QObject::eventFilter(watched, event);
}

QString FormMemory::Text(const QString& key) const {
  const auto changed = m_changed.find(key);
  if (changed != m_changed.end()) return changed->second;
  try {
    return ToQt(m_store.GetSetting(kFile, kSection, FromQt(key), ""));
  } catch (const RunTimeError&) {
    return {};
  }
}

void FormMemory::Place(QWidget& window) {
  const QByteArray place = QByteArray::fromBase64(Text(window.objectName()).toLatin1());
  const QWidget* owner = window.parentWidget() == nullptr ? nullptr : window.parentWidget()->window();
  if (!place.isEmpty()) {
    window.restoreGeometry(place);
  } else if (owner != nullptr && owner->isVisible()) {
    const QSize wanted = window.testAttribute(Qt::WA_Resized) ? window.size() : window.sizeHint();
    window.resize(wanted.boundedTo(owner->size()));  // at first no larger than the form that it belongs to
  }
  FitToScreen(window);
}

}  // namespace folionet
