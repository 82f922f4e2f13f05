#include "Seen.h"

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QDialog>
#include <QFontDatabase>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QShortcut>
#include <QTreeWidget>
#include <algorithm>
#include <map>

#include "QtText.h"
#include "Script.h"
#include "TextCombo.h"

namespace folionet {
namespace {

// Gathers traits; those that are false or empty are left out.
class Gathered {
 public:
  void Add(const char* name, bool holds) {
    if (holds) m_traits.emplace_back(name);
  }
  void Add(const char* name, const QString& text) {
    if (!text.isEmpty()) m_traits.push_back(std::string(name) + '=' + test::Visible(FromQt(text)));
  }
  Traits Taken() { return std::move(m_traits); }

 private:
  Traits m_traits;
};

QString ItemsOf(const QComboBox& list) {
  constexpr int kMost = 12;
  QStringList items;
  for (int i = 0; i < list.count(); ++i) items << list.itemText(i);
  if (list.count() <= kMost) return items.join(QLatin1Char(','));
  return items.first() + QStringLiteral("..") + items.last() + QStringLiteral(" (%1)").arg(list.count());
}

void AddText(const QWidget& control, Gathered& traits) {
  if (const auto* list = qobject_cast<const QComboBox*>(&control)) {
    const auto* texts = qobject_cast<const TextCombo*>(list);
    traits.Add("text", texts != nullptr ? texts->Text() : list->currentText());
    traits.Add("typed", list->isEditable());
    if (list->count() < QFontDatabase::families().size()) traits.Add("items", ItemsOf(*list));
    return;
  }
  const auto* label = qobject_cast<const QLabel*>(&control);
  if (label != nullptr && label->buddy() != nullptr) return;  // is told with what it names
  const auto* box = qobject_cast<const QPlainTextEdit*>(&control);
  traits.Add("text", box != nullptr ? box->toPlainText() : control.property("text").toString());
  traits.Add("title", control.property("title").toString());
  if (const auto* tree = qobject_cast<const QTreeWidget*>(&control)) traits.Add("column", tree->headerItem()->text(0));
  if (const auto* bar = qobject_cast<const QProgressBar*>(&control)) {
    traits.Add("value", QStringLiteral("%1 of %2").arg(bar->value()).arg(bar->maximum()));
  }
}

void AddState(const QWidget& control, Gathered& traits) {
  traits.Add("off", !control.isEnabledTo(control.window()));
  traits.Add("hidden", control.isHidden());
  traits.Add("on", control.property("checked").toBool());
  traits.Add("read-only", control.property("readOnly").toBool());
  traits.Add("default", control.property("default").toBool());
  traits.Add("unframed", control.inherits("QLineEdit") && !control.property("frame").toBool());
  traits.Add("wraps", control.property("wordWrap").toBool());
  traits.Add("selectable", control.inherits("QLabel") &&
                               control.property("textInteractionFlags").toInt() == Qt::TextSelectableByMouse);
  traits.Add("hand", control.cursor().shape() == Qt::PointingHandCursor);
}

void AddLook(const QWidget& control, Gathered& traits) {
  const int place = control.property("alignment").toInt() & ~(Qt::AlignLeft | Qt::AlignVCenter);
  if (place != 0 && !control.inherits("QGroupBox")) traits.Add("alignment", QString::number(place, 16));
  const QFont& font = control.font();
  if (control.testAttribute(Qt::WA_SetFont)) {
    const bool isFixed = font.families().contains(QFontDatabase::systemFont(QFontDatabase::FixedFont).family());
    if ((font.resolveMask() & QFont::FamiliesResolved) != 0) traits.Add("font", isFixed ? "fixed" : font.family());
    if ((font.resolveMask() & QFont::SizeResolved) != 0 && !isFixed) {
      traits.Add("size", QString::number(font.pointSizeF()));
    }
    traits.Add("bold", font.bold());
    traits.Add("italic", font.italic());
    traits.Add("underlined", font.underline());
  }
  const std::pair<const char*, QPalette::ColorRole> roles[] = {{"ground", QPalette::Base},
                                                               {"ink", QPalette::Text},
                                                               {"window", QPalette::Window},
                                                               {"words", QPalette::WindowText}};
  const QPalette& form = control.window()->palette();
  for (const auto& [name, role] : roles) {
    if (!control.testAttribute(Qt::WA_SetPalette) || !control.palette().isBrushSet(QPalette::Active, role)) continue;
    const QColor colour = control.palette().color(QPalette::Active, role);
    const bool isForms = role == QPalette::Base && colour == form.color(QPalette::Active, QPalette::Window);
    traits.Add(name, isForms ? "window" : colour.name());
  }
}

void AddHelp(const QWidget& control, Gathered& traits) {
  for (const auto* label : control.window()->findChildren<QLabel*>()) {
    if (label->buddy() == &control) traits.Add("label", label->text());
  }
  traits.Add("hint", control.property("placeholderText").toString().trimmed());
  traits.Add("tip", control.toolTip());
  traits.Add("heard", control.accessibleName());
  traits.Add("told", control.accessibleDescription());
  const QString key = control.property("shortcut").value<QKeySequence>().toString();
  if (!key.startsWith("Alt+")) traits.Add("key", key);  // its text has the others
  QStringList actions;
  for (const QAction* action : control.actions()) actions << action->text() + '(' + action->shortcut().toString() + ')';
  traits.Add("actions", actions.join(' '));
}

Traits TraitsOf(const QWidget& control) {
  Gathered traits;
  AddText(control, traits);
  AddState(control, traits);
  AddLook(control, traits);
  AddHelp(control, traits);
  return traits.Taken();
}

Traits TraitsOfWindow(const QWidget& window) {
  Gathered traits;
  traits.Add("title", window.windowTitle());
  traits.Add("open", window.isVisible());
  traits.Add("drops", window.acceptDrops());
  traits.Add("grip", window.property("sizeGripEnabled").toBool());
  QStringList keys;
  for (const auto* shortcut : window.findChildren<QShortcut*>(Qt::FindDirectChildrenOnly)) {
    keys << shortcut->key().toString();
  }
  for (const QAction* action : window.actions()) keys << action->shortcut().toString();
  traits.Add("keys", keys.join(' '));
  return traits.Taken();
}

bool IsTabbed(const QWidget* control) { return (control->focusPolicy() & Qt::TabFocus) != 0; }

void AddWindow(const QWidget& window, const std::string& prefix, SeenControls& seen) {
  seen.emplace_back(FromQt(window.objectName()) + '.', TraitsOfWindow(window));
  QList<const QWidget*> controls;
  for (const QWidget* at = window.nextInFocusChain(); at != &window; at = at->nextInFocusChain()) {
    if (IsTabbed(at)) controls << at;
  }
  for (const QWidget* control : window.findChildren<QWidget*>()) {
    if (!IsTabbed(control)) controls << control;
  }
  for (const QWidget* control : controls) {
    const QString name = control->objectName();
    if (control->window() != &window || name.isEmpty() || name.startsWith("qt_")) continue;
    Traits traits = TraitsOf(*control);
    if (!traits.empty() || IsTabbed(control)) seen.emplace_back(prefix + FromQt(name), std::move(traits));
  }
}

}  // namespace

SeenControls ControlsOf(const QWidget& form) {
  SeenControls seen;
  AddWindow(form, {}, seen);
  for (const QDialog* dialog : form.findChildren<QDialog*>()) {
    AddWindow(*dialog, FromQt(dialog->objectName()) + '.', seen);
  }
  return seen;
}

std::vector<std::string> ChangesOf(const SeenControls& before, const SeenControls& after) {
  const std::map<std::string, Traits> known(before.begin(), before.end());
  std::vector<std::string> changes;
  for (const auto& [name, traits] : after) {
    const auto old = known.find(name);
    const Traits was = old == known.end() ? Traits() : old->second;
    const auto key = [](const std::string& trait) { return trait.substr(0, trait.find('=')); };
    std::string line;
    for (const std::string& trait : traits) {
      if (std::ranges::find(was, trait) == was.end()) line += " | " + trait;
    }
    for (const std::string& trait : was) {
      const auto isSame = [&](const std::string& now) { return key(now) == key(trait); };
      if (std::ranges::none_of(traits, isSame)) line += " | no " + key(trait);
    }
    if (!line.empty()) changes.push_back(name + ':' + line.substr(2));
  }
  return changes;
}

}  // namespace folionet
