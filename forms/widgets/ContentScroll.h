#pragma once

#include <QDialog>
#include <QScrollArea>
#include <QTimer>

namespace folionet {

// What scrolls: lists and texts in it give way before a bar is needed.
class ScrolledContent : public QWidget {
  Q_OBJECT

 public:
  using QWidget::QWidget;

  int heightForWidth(int width) const override;
};

// Content that scrolls where there is not room enough for it, and takes up all of what there is. It asks for the size
// of its content, frameless, and on its ground.
class ContentScroll : public QScrollArea {
  Q_OBJECT

 public:
  explicit ContentScroll(QWidget* parent = nullptr);
  ~ContentScroll() override;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;  // the content's size hint is this one's
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  int BarRoom() const;
  void KeepOffBar();  // room between the content and a scroll bar that is there
  void KeepFocusSeen();

  QTimer m_moved;  // once the content has laid out its parts
};

// Makes all of a dialog scroll but the last row of its layout, which holds its buttons.
void ScrollAllButButtons(QDialog& dialog);

}  // namespace folionet
