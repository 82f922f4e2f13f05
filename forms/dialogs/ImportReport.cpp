#include "ImportReport.h"

#include <QCoreApplication>
#include <QLocale>
#include <QStringList>

#include "Finding.h"
#include "QtText.h"

namespace folionet {
namespace {

// The texts of this file stand in one context with those of import.
class Import {
  Q_DECLARE_TR_FUNCTIONS(Import)

 public:
  static QStringList Facts(const LibraryPlan& plan) {
    const QString code = ToQt(plan.text.language);
    const QLocale language(code);
    QString shown = tr("not told by the text");
    if (!code.isEmpty())
      shown = language.language() == QLocale::C ? code : language.nativeLanguageName() + " (" + code + ")";
    const QLocale locale;
    QStringList lines{tr("Books: %1, chapters: %2, verses: %3")
                          .arg(locale.toString(plan.books), locale.toString(plan.chapters),
                               locale.toString(static_cast<qulonglong>(plan.verses))),
                      tr("Language: %1").arg(shown), tr("Charset: %1").arg(ToQt(plan.text.charset)),
                      tr("Stem of its files: %1").arg(ToQt(plan.stem)),
                      tr("Library: %1").arg(ToQt(plan.library.Folder()))};
    if (plan.replaces) lines += tr("The library holds a translation with this stem. It would be replaced.");
    return lines;
  }

  static QString Line(std::size_t line) { return tr("line %1").arg(static_cast<qulonglong>(line)); }
  static QString Nothing() { return tr("Nothing was written."); }
};

}  // namespace

QString OfImport(const Sentence& sentence) {
  const QByteArray pattern = QCoreApplication::translate("Import", sentence.pattern).toUtf8();
  return ToQt(Sentence{pattern.constData(), sentence.arguments}.InEnglish());
}

QString FoundInText(const LibraryPlan& plan) {
  QStringList lines = Import::Facts(plan);
  for (const Finding& finding : plan.findings) {
    QString where = ToQt(finding.file);
    if (finding.line != 0) where += ", " + Import::Line(finding.line);
    lines += where.isEmpty() ? OfImport(finding.what) : where + ": " + OfImport(finding.what);
  }
  return lines.join('\n');
}

QString WhyNoImport(const ImportError& error) {
  QStringList lines{ToQt(error.Item())};
  if (error.Line() != 0) lines[0] += ", " + Import::Line(error.Line());
  if (!error.What().IsEmpty()) {
    lines += ToQt(error.Place()) + OfImport(error.What());
  } else {
    lines += error.Detail().empty() ? ToQt(StandardMessage(error.Number())) : ToQt(error.Detail());
  }
  lines += Import::Nothing();
  return lines.join('\n');
}

}  // namespace folionet
