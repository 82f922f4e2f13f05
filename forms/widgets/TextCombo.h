#pragma once

#include <QComboBox>

namespace folionet {

// A list whose text may be one that is not among its items, as a stored choice whose file is gone.
class TextCombo : public QComboBox {
  Q_OBJECT

 public:
  using QComboBox::QComboBox;

  // Selects the item of that text, or shows the text with no item selected.
  void SetText(const QString& text);
  QString Text() const;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QString m_ownText;  // shown while no item is selected
};

}  // namespace folionet
