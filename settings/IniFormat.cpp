#include "IniFormat.h"

#include <QByteArray>
#include <QFileDevice>
#include <QIODevice>
#include <utility>

namespace folionet {
namespace {

// Stands among the settings of a file that could not be read whole. QSettings would go on and write the few settings
// that it has over the file; with this one among them, writing is refused.
constexpr char kUnreadable[] = "\x01unreadable";

QString Unquoted(QByteArrayView inner) {
  QByteArray text;
  for (qsizetype i = 0; i < inner.size(); ++i) {
    char c = inner[i];
    if (c == '\\' && i + 1 < inner.size()) {
      const char escaped = inner[i + 1];
      const char* const known = escaped == 'n'    ? "\n"
                                : escaped == 'r'  ? "\r"
                                : escaped == 't'  ? "\t"
                                : escaped == '"'  ? "\""
                                : escaped == '\\' ? "\\"
                                                  : nullptr;
      if (known != nullptr) {
        c = *known;
        ++i;
      }
    }
    text += c;
  }
  return QString::fromUtf8(text);
}

// Whether the quote that opens a value is closed by its very last character.
bool IsWholeQuoted(QByteArrayView value) {
  if (value.size() < 2 || value.front() != '"' || value.back() != '"') return false;
  for (qsizetype i = 1; i < value.size(); ++i) {
    if (value[i] == '\\') {
      ++i;
    } else if (value[i] == '"') {
      return i == value.size() - 1;
    }
  }
  return false;
}

bool Read(QIODevice& device, QSettings::SettingsMap& map) {
  QByteArray text = device.readAll();
  if (text.size() < device.size()) map.insert(QLatin1String(kUnreadable), true);
  if (text.startsWith("\xEF\xBB\xBF")) text.remove(0, 3);
  QByteArray section;
  for (QByteArray line : text.split('\n')) {
    line = std::move(line).trimmed();
    if (line.isEmpty() || line.startsWith(';') || line.startsWith('#')) continue;
    if (line.startsWith('[') && line.endsWith(']')) {
      section = line.mid(1, line.size() - 2).trimmed();
      continue;
    }
    const qsizetype equals = line.indexOf('=');
    if (equals <= 0) continue;
    const QByteArray value = line.mid(equals + 1).trimmed();
    const QByteArray name = section + (section.isEmpty() ? "" : "/") + line.left(equals).trimmed();
    map.insert(QString::fromUtf8(name),
               IsWholeQuoted(value) ? Unquoted(QByteArrayView(value).sliced(1).chopped(1)) : QString::fromUtf8(value));
  }
  return true;
}

QByteArray Written(const QByteArray& value) {
  const bool plain = value == value.trimmed() && !value.contains('"') && !value.contains('\n') &&
                     !value.contains('\r') && !value.contains('\0');
  if (plain) return value;
  QByteArray quoted = value;
  quoted.replace("\\", "\\\\").replace("\"", "\\\"").replace("\r", "\\r").replace("\n", "\\n").replace("\t", "\\t");
  return '"' + quoted + '"';
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
    text += entry.key().mid(slash + 1).toUtf8() + '=' + Written(entry.value().toString().toUtf8()) + '\n';
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
