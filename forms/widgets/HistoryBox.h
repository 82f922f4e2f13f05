#pragma once

#include <QLineEdit>

namespace folionet {

// A box of one line that offers texts: the arrow keys walk through them, and a button in the box lists them.
class HistoryBox : public QLineEdit {
  Q_OBJECT

 public:
  explicit HistoryBox(QWidget* parent = nullptr);

  void Offer(const QStringList& texts) { m_offered = texts; }
  const QStringList& Offered() const { return m_offered; }

 protected:
  void changeEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void DrawButton();
  void Walk(int step);
  void ListAll();

  QAction* m_list;
  QStringList m_offered;
};

}  // namespace folionet
