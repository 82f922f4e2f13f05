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
  static QString Warning(const QString& text) { return tr("Warning: %1").arg(text); }

  // What a person does in the form about a finding of this kind; the remedy of the finding itself is the command
  // line's.
  static QString Step(const Finding& finding) {
    if (finding.kind == "language") return tr("Another one is chosen in Page Encoding, once the text is imported.");
    if (finding.kind == "book-names" || finding.kind == "renamed-books") {
      return tr("The help says how to name them: \"Names of the books in your own language\".");
    }
    return {};
  }
  static QString Nothing() { return tr("Nothing was written."); }
};

}  // namespace

// What a person can do something about comes first: there may be hundreds of verses that are told.
QString FoundInText(const LibraryPlan& plan) {
  QStringList lines = Import::Facts(plan);
  QStringList others;
  for (const Finding& finding : plan.findings) {
    QString text = InDesktopLanguage(finding.what, "Import");
    if (finding.severity == Severity::kWarning) text = Import::Warning(text);
    QString where = ToQt(finding.file);
    if (finding.line != 0) where += ", " + Import::Line(finding.line);
    if (!where.isEmpty()) text = where + ": " + text;
    const QString step = Import::Step(finding);
    step.isEmpty() ? others += text : lines += text + ' ' + step;
  }
  return (lines + others).join('\n');
}

QString WhyNoImport(const ImportError& error) {
  QStringList lines{ToQt(error.Item())};
  if (error.Line() != 0) lines[0] += ", " + Import::Line(error.Line());
  if (!error.What().IsEmpty()) {
    lines += ToQt(error.Place()) + InDesktopLanguage(error.What(), "Import");
  } else {
    lines += error.Detail().empty() ? ToQt(StandardMessage(error.Number())) : ToQt(error.Detail());
  }
  lines += Import::Nothing();
  return lines.join('\n');
}

}  // namespace folionet
