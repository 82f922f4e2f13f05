#pragma once

#include <QMimeData>
#include <QString>
#include <QUrl>

namespace folionet {

// The file or folder of this machine that is dragged; empty for anything else and for several.
inline QString DraggedPath(const QMimeData* data) {
  const QList<QUrl> urls = data->urls();
  return urls.size() == 1 ? urls[0].toLocalFile() : QString();
}

}  // namespace folionet
