#include "Seen.h"

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QDialog>
#include <QFontDatabase>
#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QShortcut>
#include <QTreeWidget>
#include <algorithm>
#include <map>

#include "QtText.h"
#include "Script.h"
#include "TextCombo.h"

namespace folionet {
namespace {

using Names = std::vector<std::pair<const char*, const char*>>;

void Add(const char* trait, bool holds, Traits& traits) {
  if (holds) traits.emplace_back(trait);
}

void Add(const char* trait, const QString& text, Traits& traits) {
  if (!text.isEmpty()) traits.push_back(std::string(trait) + '=' + test::Visible(FromQt(text)));
}

// Both name a trait and Qt's property.
void AddProperties(const QWidget& widget, const Names& texts, const Names& flags, Traits& traits) {
  for (const auto& [trait, property] : texts) Add(trait, widget.property(property).toString().trimmed(), traits);
  for (const auto& [trait, property] : flags) Add(trait, widget.property(property).toBool(), traits);
}

void AddContent(const QWidget& control, Traits& traits) {
  if (const auto* list = qobject_cast<const QComboBox*>(&control)) {
    const auto* texts = qobject_cast<const TextCombo*>(list);
    Add("text", texts != nullptr ? texts->Text() : list->currentText(), traits);
    QStringList items;
    for (int i = 0; i < list->count(); ++i) items << list->itemText(i);
    constexpr qsizetype kMost = 12;  // of the books the first and the last, of the fonts none
    if (items.size() > kMost) items = {items.first() + QStringLiteral("..") + items.last()};
    if (control.objectName() != QLatin1String("cboFont")) Add("items", items.join(','), traits);
  } else if (const auto* box = qobject_cast<const QPlainTextEdit*>(&control)) {
    Add("text", box->toPlainText(), traits);
  } else if (const auto* tree = qobject_cast<const QTreeWidget*>(&control)) {
    Add("column", tree->headerItem()->text(0), traits);
    Add("icons", tree->topLevelItem(0) != nullptr && !tree->topLevelItem(0)->icon(0).isNull(), traits);
    Add("current", tree->currentItem() == nullptr ? QString() : tree->currentItem()->text(0), traits);
  } else if (const auto* bar = qobject_cast<const QProgressBar*>(&control)) {
    Add("value", QStringLiteral("%1 of %2").arg(bar->value()).arg(bar->maximum()), traits);
  } else if (const auto* label = qobject_cast<const QLabel*>(&control); label == nullptr || label->buddy() == nullptr) {
    Add("text", control.property("text").toString(), traits);  // a label's is told with what it names
  }
  for (const auto* label : control.window()->findChildren<QLabel*>()) {
    if (label->buddy() == &control) Add("label", label->text(), traits);
  }
}

void AddLook(const QWidget& control, Traits& traits) {
  const bool isLabel = control.inherits("QLabel");
  Add("off", !control.isEnabledTo(control.window()), traits);
  Add("hidden", control.isHidden(), traits);
  Add("unframed", control.inherits("QLineEdit") && !control.property("frame").toBool(), traits);
  Add("selectable", isLabel && control.property("textInteractionFlags").toInt() == Qt::TextSelectableByMouse, traits);
  Add("at its end", control.property("readOnly").toBool() && control.property("cursorPosition").toInt() > 0, traits);
  Add("framed", isLabel && control.property("frameShape").toInt() != 0 && control.property("margin").toInt() > 0,
      traits);
  Add("menu", control.contextMenuPolicy() == Qt::ActionsContextMenu, traits);
  Add("hand", control.cursor().shape() == Qt::PointingHandCursor, traits);
  constexpr int kUsual = static_cast<int>(Qt::AlignLeft) | static_cast<int>(Qt::AlignVCenter);
  const int place = control.property("alignment").toInt() & ~kUsual;
  if (place != 0 && (isLabel || control.inherits("QLineEdit"))) Add("alignment", QString::number(place, 16), traits);
  if (control.testAttribute(Qt::WA_SetFont)) {
    const QFont& font = control.font();
    const bool isFixed = font.families().contains(QFontDatabase::systemFont(QFontDatabase::FixedFont).family());
    const auto isSet = [&](int part) { return (font.resolveMask() & static_cast<uint>(part)) != 0; };
    if (isSet(QFont::FamiliesResolved)) Add("font", isFixed ? QStringLiteral("fixed") : font.family(), traits);
    if (isSet(QFont::SizeResolved) && !isFixed) Add("size", QString::number(font.pointSizeF()), traits);
    Add("bold", font.bold(), traits);
    Add("italic", font.italic(), traits);
    Add("underlined", font.underline(), traits);
  }
  const auto colour = [](const QWidget& of, QPalette::ColorRole role) {
    return of.palette().color(QPalette::Active, role);
  };
  for (const auto& [trait, role] : {std::pair{"ground", QPalette::Base},
                                    {"ink", QPalette::Text},
                                    {"window", QPalette::Window},
                                    {"words", QPalette::WindowText}}) {
    if (!control.testAttribute(Qt::WA_SetPalette) || !control.palette().isBrushSet(QPalette::Active, role)) continue;
    const bool isForms = role == QPalette::Base && colour(control, role) == colour(*control.window(), QPalette::Window);
    Add(trait, isForms ? QStringLiteral("window") : colour(control, role).name(), traits);
  }
}

Traits TraitsOf(const QWidget& control) {
  Traits traits;
  AddContent(control, traits);
  AddLook(control, traits);
  AddProperties(control,
                {{"title", "title"},
                 {"hint", "placeholderText"},
                 {"tip", "toolTip"},
                 {"heard", "accessibleName"},
                 {"told", "accessibleDescription"}},
                {{"on", "checked"},
                 {"read-only", "readOnly"},
                 {"typed", "editable"},
                 {"default", "default"},
                 {"follows links", "openExternalLinks"},
                 {"wraps", "wordWrap"}},
                traits);
  const QString key = control.property("shortcut").value<QKeySequence>().toString();
  if (!key.startsWith("Alt+")) Add("key", key, traits);  // its text has the others
  for (const QAction* action : control.actions()) {
    Add("action", (action->text() + ' ' + action->shortcut().toString()).trimmed(), traits);
  }
  return traits;
}

Traits TraitsOfWindow(const QWidget& window) {
  Traits traits;
  AddProperties(window, {{"title", "windowTitle"}},
                {{"open", "visible"}, {"drops", "acceptDrops"}, {"grip", "sizeGripEnabled"}}, traits);
  Add("scrolls", window.findChild<QWidget*>(QStringLiteral("scrContent"), Qt::FindDirectChildrenOnly) != nullptr,
      traits);
  QStringList keys;
  for (const auto* shortcut : window.findChildren<QShortcut*>(Qt::FindDirectChildrenOnly)) {
    keys << shortcut->key().toString();
  }
  for (const QAction* action : window.actions()) keys << action->shortcut().toString();
  Add("keys", keys.join(' '), traits);
  return traits;
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
  Traits mereTexts;
  for (const QWidget* control : controls) {
    const QString name = control->objectName();
    if (control->window() != &window || name.isEmpty() || name.startsWith("qt_")) continue;
    Traits traits = TraitsOf(*control);
    const bool isMereText = !IsTabbed(control) && traits.size() == 1 && traits[0].starts_with("t");
    if (isMereText) mereTexts.push_back(FromQt(name) + traits[0].substr(traits[0].find('=')));
    if (!isMereText && (!traits.empty() || IsTabbed(control)))
      seen.emplace_back(prefix + FromQt(name), std::move(traits));
  }
  if (!mereTexts.empty()) seen.emplace_back(prefix + "texts", std::move(mereTexts));
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
  const auto key = [](const std::string& trait) { return trait.substr(0, trait.find('=')); };
  std::vector<std::string> changes;
  for (const auto& [name, traits] : after) {
    const auto old = known.find(name);
    const Traits was = old == known.end() ? Traits() : old->second;
    std::string line;
    for (const std::string& trait : traits) {
      if (std::ranges::find(was, trait) == was.end()) line += " | " + trait;
    }
    for (const std::string& trait : was) {
      if (std::ranges::find(traits, key(trait), key) == traits.end()) line += " | no " + key(trait);
    }
    if (!line.empty()) changes.push_back(name + ':' + line.substr(2));
  }
  return changes;
}

}  // namespace folionet
