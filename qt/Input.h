#pragma once

#include <QtCore/qnamespace.h>
#include <QPointF>

#include "platform/layout/Geometry.h"

namespace quorix::qt {

inline layout::Point toPoint(QPointF point) { return {point.x(), point.y()}; }

/// The keys that stand for a tap on what has the focus.
inline bool activates(int key) {
  return key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space ||
         key == Qt::Key_Select;
}

}  // namespace quorix::qt
