#pragma once

#include <initializer_list>

class QLabel;

namespace folionet {

// Makes the labels of several groups one column, as wide as the widest of them in the font that they have now.
void AlignLabels(std::initializer_list<QLabel*> labels);

}  // namespace folionet
