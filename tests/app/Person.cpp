#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QGenericPlugin>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>
#include <QTimer>
#include <cstdio>

// A plugin that a program of ours loads where QT_QPA_GENERIC_PLUGINS names it: a person in front of the form, who
// answers every box with its first button, cancels what asks for a text, and closes the form. What is seen goes to
// standard output, a line each.
class Person : public QObject {
  Q_OBJECT

 public:
  Person() { LookSoon(); }

 private:
  static void Tell(const char* what, const QString& text) {
    std::printf("%s %s\n", what, qPrintable(QString(text).replace(QLatin1Char('\n'), QLatin1String(" / "))));
    std::fflush(stdout);
  }

  // By a timer of its own each time: what a click opens waits within it.
  void LookSoon() {
    constexpr int kMilliseconds = 10;
    QTimer::singleShot(kMilliseconds, this, &Person::Look);
  }

  void Look() {
    LookSoon();
    QWidget* modal = QApplication::activeModalWidget();
    if (auto* box = qobject_cast<QMessageBox*>(modal)) {
      Tell("box:", box->windowTitle() + QStringLiteral(": ") + box->text());
      return box->buttons().constFirst()->click();
    }
    if (auto* box = qobject_cast<QInputDialog*>(modal)) {
      Tell("asked:", box->labelText());
      return box->reject();
    }
    if (auto* report = qobject_cast<QDialog*>(modal)) {
      Tell("window:", report->objectName());
      return report->close(), void();
    }
    for (const QWidget* window : QApplication::topLevelWidgets()) {
      if (m_hasSeenForm || window->objectName() != QLatin1String("frmMain") || !window->isVisible()) continue;
      m_hasSeenForm = true;
      for (const char* name : {"txtBibleSel", "cmdVerifySite"}) {
        Tell(name, window->findChild<QWidget*>(QLatin1String(name))->property("text").toString());
      }
      Tell("folder:", QDir::currentPath());
      Tell("direction:", QString::number(window->layoutDirection()));
      window->findChild<QAbstractButton*>(QStringLiteral("cmdClose"))->click();
    }
  }

  bool m_hasSeenForm = false;
};

class PersonPlugin : public QGenericPlugin {
  Q_OBJECT
  Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "Person.json")

 public:
  QObject* create(const QString& /*name*/, const QString& /*arguments*/) override { return new Person; }
};

#include "Person.moc"
