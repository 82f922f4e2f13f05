#include "LabelColumn.h"

#include <QLabel>
#include <algorithm>

namespace folionet {

void AlignLabels(std::initializer_list<QLabel*> labels) {
  int widest = 0;
  for (const QLabel* label : labels) widest = std::max(widest, label->sizeHint().width());
  for (QLabel* label : labels) label->setMinimumWidth(widest);
}

}  // namespace folionet
