#pragma once

class QWidget;

namespace folionet {

// From now on F1 in the window opens the help at what is told about the control that has the focus, or about what that
// is in; at the contents where nothing is told about either.
void OpenHelpByKey(QWidget& window);

}  // namespace folionet
