#pragma once

#include <QString>
#include <QTreeWidget>

namespace folionet {

// The folders of one volume, read as they are opened, and those that are open read anew by F5. The current one is the
// chosen one.
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
  void Fill(QTreeWidgetItem* item);
  void FillOpened(QTreeWidgetItem* item);
  bool HoldsCurrent(const QTreeWidgetItem* item) const;
  QTreeWidgetItem* ChildNamed(QTreeWidgetItem* item, const QString& name);
  void Choose(QTreeWidgetItem* item);
};

}  // namespace folionet
