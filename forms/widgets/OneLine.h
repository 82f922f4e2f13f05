#pragma once

#include <QString>
#include <QWidget>

namespace folionet {

// The text with a blank for each of its line breaks and other control characters.
QString InOneLine(const QString& text);

// Keeps every box of one line in the form, typed into or pasted into, to InOneLine: nothing in it breaks a line of a
// page or of a settings file.
void KeepBoxesToOneLine(QWidget& form);

}  // namespace folionet
