#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <string>

#include "QtText.h"
#include "TextBox.h"

namespace folionet {

// Keeps a field of a record equal to what a control shows, as it is typed. The record must outlive the control.

inline void Follow(QLineEdit* box, std::string& field) {
  QObject::connect(box, &QLineEdit::textChanged, box, [&field](const QString& text) { field = FromQt(text); });
}

inline void Follow(TextBox* box, std::string& field) {
  QObject::connect(box, &TextBox::textChanged, box, [&field, box] { field = box->Text(); });
}

inline void Follow(QComboBox* box, std::string& field) {
  QObject::connect(box, &QComboBox::editTextChanged, box, [&field](const QString& text) { field = FromQt(text); });
}

inline void Follow(QCheckBox* box, bool& field) {
  QObject::connect(box, &QCheckBox::toggled, box, [&field](bool isChecked) { field = isChecked; });
}

}  // namespace folionet
