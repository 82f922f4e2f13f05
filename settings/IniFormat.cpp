#include "IniFormat.h"

#include <QByteArray>
#include <QFileDevice>
#include <QIODevice>

#include "IniText.h"

namespace folionet {
namespace {

// Stands among the settings of a file that could not be read whole. QSettings would go on and write the few settings
// that it has over the file; with this one among them, writing is refused.
constexpr char kUnreadable[] = "\x01unreadable";

bool Read(QIODevice& device, QSettings::SettingsMap& map) {
  const QByteArray text = device.readAll();
  if (text.size() < device.size()) map.insert(QLatin1String(kUnreadable), true);
  for (const auto& [name, value] : ParseIni({text.data(), static_cast<std::size_t>(text.size())})) {
    map.insert(QString::fromStdString(name), QString::fromStdString(value));
  }
  return true;
}

bool Write(QIODevice& device, const QSettings::SettingsMap& map) {
  if (map.contains(QLatin1String(kUnreadable))) return false;
  QByteArray text;
  QString section;
  for (auto entry = map.cbegin(); entry != map.cend(); ++entry) {
    const qsizetype slash = entry.key().indexOf('/');
    const QString entrySection = entry.key().left(slash < 0 ? 0 : slash);
    if (entrySection != section) {
      if (!text.isEmpty()) text += '\n';
      text += '[' + entrySection.toUtf8() + "]\n";
      section = entrySection;
    }
    const std::string value = IniValueText(entry.value().toString().toStdString());
    text += entry.key().mid(slash + 1).toUtf8() + '=' + QByteArray::fromStdString(value) + '\n';
  }
  // QSettings would not notice that the text, which is small, fails to leave the buffer.
  auto* const file = qobject_cast<QFileDevice*>(&device);
  return device.write(text) == text.size() && (file == nullptr || file->flush());
}

}  // namespace

bool IsWholeReading(const QSettings& settings) { return !settings.contains(QLatin1String(kUnreadable)); }

QSettings::Format VerbatimIniFormat() {
  static const QSettings::Format format = QSettings::registerFormat(QStringLiteral("ini"), Read, Write);
  return format;
}

}  // namespace folionet
