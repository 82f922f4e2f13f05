#include "FolderTree.h"

#include <QDir>
#include <QFile>
#include <QHash>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPersistentModelIndex>
#include <QSet>
#include <QSignalBlocker>
#include <QStyle>
#include <algorithm>
#include <atomic>
#include <memory>
#include <optional>

#include "FolderReader.h"

namespace folionet {
namespace {

constexpr int kPathRole = Qt::UserRole;

QString PathOf(const QTreeWidgetItem* item) { return item->data(0, kPathRole).toString(); }

QTreeWidgetItem* MakeItem(const QString& name, const QString& path, const QIcon& icon) {
  auto* item = new QTreeWidgetItem({name});
  item->setData(0, kPathRole, path);
  item->setIcon(0, icon);
  item->setToolTip(0, QDir::toNativeSeparators(path));
  item->setChildIndicatorPolicy(QTreeWidgetItem::ShowIndicator);
  return item;
}

// What may be listed in a folder.
struct Entries {
  QStringList folders;
  QStringList links;  // and what the disk does not tell the kind of
};

// QDir would look at each of the files, which may be a hundred thousand, and the standard library forms the path of
// each. Nothing where the folder cannot be read.
std::optional<Entries> EntriesOf(const QString& path) {
  FolderReader folder(QFile::encodeName(path).constData());
  if (!folder.IsOpen()) return std::nullopt;
  Entries entries;
  while (const dirent* const entry = folder.Next()) {
    if (entry->d_type == DT_DIR) entries.folders << QFile::decodeName(entry->d_name);
    if (entry->d_type == DT_LNK || entry->d_type == DT_UNKNOWN) entries.links << QFile::decodeName(entry->d_name);
  }
  entries.folders.sort(Qt::CaseInsensitive);
  return entries;
}

bool IsHidden(const QString& name) { return name.startsWith(QLatin1Char('.')); }

// Where a name belongs among those of the children.
int PlaceOf(const QTreeWidgetItem& item, const QString& name) {
  int place = 0;
  while (place < item.childCount() && item.child(place)->text(0).compare(name, Qt::CaseInsensitive) < 0) ++place;
  return place;
}

QTreeWidgetItem* ListedChild(const QTreeWidgetItem& item, const QString& name) {
  for (int i = 0; i < item.childCount(); ++i) {
    if (item.child(i)->text(0) == name) return item.child(i);
  }
  return nullptr;
}

}  // namespace

FolderTree::FolderTree(QWidget* parent) : QTreeWidget(parent) {
  setHeaderHidden(true);
  setHeaderLabel(tr("Folder"));
  setUniformRowHeights(true);
  connect(this, &QTreeWidget::itemExpanded, this, &FolderTree::Open);
  connect(this, &QTreeWidget::currentItemChanged, this, &FolderTree::Choose);
  // The current folder is chosen by a click or Enter on it.
  connect(this, &QTreeWidget::itemClicked, this, &FolderTree::Choose);
  connect(this, &QTreeWidget::itemActivated, this, &FolderTree::Choose);
}

void FolderTree::SetRoot(const QString& name, const QString& path) {
  const QSignalBlocker quiet(this);
  clear();
  m_following.clear();
  auto* root = MakeItem(name, path, style()->standardIcon(QStyle::SP_DriveHDIcon));
  addTopLevelItem(root);
  Fill(root);
  root->setExpanded(true);
  setCurrentIndex({});  // said, else the focus would make the first one current
}

bool FolderTree::SetPath(const QString& path) {
  const QSignalBlocker quiet(this);
  if (topLevelItemCount() == 0) return false;
  const QString relative = QDir(RootPath()).relativeFilePath(QDir::cleanPath(path));
  QTreeWidgetItem* item = topLevelItem(0);
  if (relative != QLatin1String(".")) {
    for (const QString& name : relative.split(QLatin1Char('/'), Qt::SkipEmptyParts)) {
      QTreeWidgetItem* child = name == QLatin1String("..") ? nullptr : ChildNamed(item, name);
      if (child == nullptr) return false;
      item->setExpanded(true);
      item = child;
    }
  }
  setCurrentItem(item);
  scrollToItem(item, QAbstractItemView::PositionAtCenter);
  return true;
}

QSize FolderTree::sizeHint() const { return SizeFor(9); }

QSize FolderTree::minimumSizeHint() const { return SizeFor(3); }

QSize FolderTree::SizeFor(int lines) const {
  constexpr int kColumns = 20;
  constexpr int kBetween = 2;
  const int icon = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
  const int line = std::max(fontMetrics().height(), icon) + kBetween;
  return {kColumns * fontMetrics().averageCharWidth(), lines * line + 2 * frameWidth()};
}

QString FolderTree::RootPath() const { return topLevelItemCount() == 0 ? QString() : PathOf(topLevelItem(0)); }

QString FolderTree::Path() const { return currentItem() == nullptr ? QString() : PathOf(currentItem()); }

void FolderTree::Open(QTreeWidgetItem* item) {
  if (answers(PathOf(item))) return Fill(item);
  const QSignalBlocker quiet(this);
  item->setExpanded(false);
}

void FolderTree::Fill(QTreeWidgetItem* item) {
  const std::optional<Entries> entries = EntriesOf(PathOf(item));
  item->setChildIndicatorPolicy(QTreeWidgetItem::DontShowIndicatorWhenChildless);
  if (!entries) return;
  const QIcon icon = style()->standardIcon(QStyle::SP_DirIcon);
  const QDir folder(PathOf(item));
  const QSet<QString> there = QSet<QString>(entries->folders.begin(), entries->folders.end()) +
                              QSet<QString>(entries->links.begin(), entries->links.end());
  QHash<QString, QTreeWidgetItem*> listed;
  for (int i = item->childCount() - 1; i >= 0; --i) {
    QTreeWidgetItem* child = item->child(i);
    if (there.contains(child->text(0)) || HoldsCurrent(child)) {
      listed.insert(child->text(0), child);
    } else {
      delete child;
    }
  }
  int place = 0;
  for (const QString& name : entries->folders) {
    if (QTreeWidgetItem* child = listed.value(name)) {
      place = item->indexOfChild(child) + 1;
    } else if (!IsHidden(name)) {
      item->insertChild(place++, MakeItem(name, folder.filePath(name), icon));
    }
  }
  FollowLinks(item, entries->links);
}

void FolderTree::FollowLinks(QTreeWidgetItem* item, const QStringList& links) {
  if (links.isEmpty()) return;
  const QString path = PathOf(item);
  const QPersistentModelIndex place(indexFromItem(item));
  const auto folders = std::make_shared<QStringList>();
  m_following[path].Start(
      [path, links, folders](const std::atomic<bool>& isWanted) {
        for (const QString& name : links) {
          if (!isWanted) return;
          if (QFileInfo(QDir(path).filePath(name)).isDir()) *folders << name;
        }
      },
      [this, place, links, folders] {
        if (QTreeWidgetItem* holder = itemFromIndex(place)) ShowLinks(*holder, links, *folders);
      });
}

void FolderTree::ShowLinks(QTreeWidgetItem& item, const QStringList& links, const QStringList& folders) {
  const QIcon icon = style()->standardIcon(QStyle::SP_DirIcon);
  for (const QString& name : links) {
    QTreeWidgetItem* child = ListedChild(item, name);
    if (!folders.contains(name)) {
      if (child != nullptr && !HoldsCurrent(child)) delete child;
    } else if (child == nullptr && !IsHidden(name)) {
      item.insertChild(PlaceOf(item, name), MakeItem(name, QDir(PathOf(&item)).filePath(name), icon));
    }
  }
}

// A folder that is gone stays while it is chosen: nothing else is chosen by reading anew.
bool FolderTree::HoldsCurrent(const QTreeWidgetItem* item) const {
  const QTreeWidgetItem* held = currentItem();
  while (held != nullptr && held != item) held = held->parent();
  return held != nullptr;
}

void FolderTree::keyPressEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_F5) {
    QTreeWidget::keyPressEvent(event);
    return;
  }
  FillOpened(topLevelItem(0));
}

// The chosen folder stays in view where the tree gives way to what is told below it.
void FolderTree::resizeEvent(QResizeEvent* event) {
  QTreeWidget::resizeEvent(event);
  if (QTreeWidgetItem* current = currentItem()) scrollToItem(current);
}

void FolderTree::FillOpened(QTreeWidgetItem* item) {
  if (item == nullptr || !item->isExpanded() || !answers(PathOf(item))) return;
  Fill(item);
  for (int i = 0; i < item->childCount(); ++i) FillOpened(item->child(i));
}

QTreeWidgetItem* FolderTree::ChildNamed(QTreeWidgetItem* item, const QString& name) {
  Fill(item);
  if (QTreeWidgetItem* child = ListedChild(*item, name)) return child;
  const QDir folder(PathOf(item));
  if (!QFileInfo(folder.filePath(name)).isDir()) return nullptr;
  auto* hidden = MakeItem(name, folder.filePath(name), style()->standardIcon(QStyle::SP_DirIcon));
  item->addChild(hidden);
  return hidden;
}

void FolderTree::Choose(QTreeWidgetItem* item) {
  if (item != nullptr) emit PathChosen(PathOf(item));
}

}  // namespace folionet
