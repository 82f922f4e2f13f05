#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QGenericPlugin>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPointer>
#include <QStyle>
#include <QTimer>
#include <cstdio>

// A plugin that a program of ours loads where QT_QPA_GENERIC_PLUGINS names it: a person in front of the form, who
// answers every box with its first button, cancels what asks for a text, and closes the form until it is gone. What is
// seen goes to standard output, a line each. Before that the person takes the steps of the variable PERSON, such as
// "cmdCustomHeader|frmCustomHeader.Text1=typed|frmCustomHeader.Command1": clicks a button, takes an action of a
// menu, fills a box, or by "program" tells what the desktop knows of the program, its style and what has the focus.
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
    auto* dialog = qobject_cast<QDialog*>(modal);
    const bool isReport = dialog != nullptr && dialog->objectName() == QLatin1String("frmErr");
    if (!m_steps.isEmpty() && !isReport && m_form != nullptr) return Take(m_steps.takeFirst());
    if (dialog != nullptr) {
      Tell("window:", dialog->objectName());
      return dialog->close(), void();
    }
    if (m_form != nullptr) return m_form->findChild<QAbstractButton*>(QStringLiteral("cmdClose"))->click();
    for (QWidget* window : QApplication::topLevelWidgets()) {
      if (window->objectName() != QLatin1String("frmMain") || !window->isVisible()) continue;
      m_form = window;
      QStringList seen;
      for (const char* name : {"txtBibleSel", "cmdVerifySite", "StatusBar1_Panel2"}) {
        seen << window->findChild<QWidget*>(QLatin1String(name))->property("text").toString();
      }
      seen << QDir::currentPath() << QString::number(window->layoutDirection());
      Tell("form:", seen.join(QStringLiteral(", ")));
    }
  }

  void Take(const QString& step) const {
    if (step == QLatin1String("program")) {
      return Tell("program:", QStringList{QApplication::applicationName(), QApplication::applicationVersion(),
                                          QGuiApplication::desktopFileName(),
                                          QLatin1String(QApplication::style()->metaObject()->className()),
                                          m_form->focusWidget()->objectName()}
                                  .join(QLatin1Char(' ')));
    }
    const QString name = step.section(QLatin1Char('='), 0, 0);
    const QString dialog = name.section(QLatin1Char('.'), 0, -2);
    const QWidget* form = dialog.isEmpty() ? m_form.data() : m_form->findChild<QDialog*>(dialog);
    if (auto* action = form->findChild<QAction*>(name)) return action->trigger();
    auto* control = form->findChild<QWidget*>(name.section(QLatin1Char('.'), -1));
    if (auto* button = qobject_cast<QAbstractButton*>(control)) return button->click();
    control->setProperty(qobject_cast<QPlainTextEdit*>(control) != nullptr ? "plainText" : "currentText",
                         step.section(QLatin1Char('='), 1));
  }

  QPointer<QWidget> m_form;  // once it is there
  QStringList m_steps = qEnvironmentVariable("PERSON").split(QLatin1Char('|'), Qt::SkipEmptyParts);
};

class PersonPlugin : public QGenericPlugin {
  Q_OBJECT
  Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "Person.json")

 public:
  QObject* create(const QString& /*name*/, const QString& /*arguments*/) override { return new Person; }
};

#include "Person.moc"
