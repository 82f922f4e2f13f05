#pragma once

#include <QComboBox>

namespace folionet {

// A list whose text may be one that is not among its items, as a stored choice whose file is gone. Filling it selects
// nothing: what no person chose must never be taken for a choice.
class TextCombo : public QComboBox {
  Q_OBJECT

 public:
  explicit TextCombo(QWidget* parent = nullptr);

  // Selects the item of that text, or shows the text with no item selected.
  void SetText(const QString& text);
  QString Text() const;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QString m_ownText;  // shown while no item is selected
};

}  // namespace folionet
