#pragma once

#include <QColor>
#include <QCoreApplication>
#include <QString>
#include <string>
#include <string_view>

#include "Colours.h"
#include "Sentence.h"

namespace folionet {

// Between the engine's texts and colours and Qt's.

inline QString ToQt(std::string_view utf8) {
  return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

inline std::string FromQt(const QString& text) { return text.toStdString(); }

// Of a pattern that is marked by Words(context, ...).
inline QString InDesktopLanguage(const Sentence& sentence, const char* context = "QObject") {
  const QByteArray pattern = QCoreApplication::translate(context, sentence.pattern).toUtf8();
  return ToQt(Sentence{pattern.constData(), sentence.arguments}.InEnglish());
}

// For a box: lines end in LF.
inline QString ToQtLines(std::string_view utf8) {
  return ToQt(utf8).replace(QLatin1String("\r\n"), QLatin1String("\n"));
}

inline std::string FromQtLines(QString text) {
  return FromQt(text.replace(QLatin1String("\n"), QLatin1String("\r\n")));
}

inline QColor ToQt(Colour colour) { return {colour & 0xFF, (colour >> 8) & 0xFF, (colour >> 16) & 0xFF}; }

inline Colour FromQt(const QColor& colour) { return colour.red() + 256 * colour.green() + 65536 * colour.blue(); }

}  // namespace folionet
