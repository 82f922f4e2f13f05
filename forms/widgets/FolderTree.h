#pragma once

#include <QString>
#include <QStringList>
#include <QTreeWidget>
#include <functional>
#include <map>

#include "BackgroundWork.h"

namespace folionet {

// The folders of one volume, read as they are opened, and those that are open read anew by F5. The current one is the
// chosen one. Links are followed beside the form: where one leads may not answer.
class FolderTree : public QTreeWidget {
  Q_OBJECT

 public:
  explicit FolderTree(QWidget* parent = nullptr);

  // Shows the folders under `path`, none of which is current, without a signal.
  void SetRoot(const QString& name, const QString& path);

  // Makes a folder under the root current, without a signal. False when there is no such folder.
  bool SetPath(const QString& path);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

  // Whether the disk of a folder answers that a person opens: one whose disk does not stays shut.
  std::function<bool(const QString& path)> answers = [](const QString& /*path*/) { return true; };

  QString RootPath() const;
  QString Path() const;

 signals:
  // A person chose the folder, be it the current one already.
  void PathChosen(const QString& path);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  QSize SizeFor(int lines) const;
  void Open(QTreeWidgetItem* item);
  void Fill(QTreeWidgetItem* item);
  void FollowLinks(QTreeWidgetItem* item, const QStringList& links);
  void ShowLinks(QTreeWidgetItem& item, const QStringList& links, const QStringList& folders);
  void FillOpened(QTreeWidgetItem* item);
  bool HoldsCurrent(const QTreeWidgetItem* item) const;
  QTreeWidgetItem* ChildNamed(QTreeWidgetItem* item, const QString& name);
  void Choose(QTreeWidgetItem* item);

  std::map<QString, BackgroundWork> m_following;  // by the folder that has the links
};

}  // namespace folionet
