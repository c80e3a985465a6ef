#pragma once

#include <QtCore/qnamespace.h>
#include <QPointF>

#include "platform/foundation/Export.h"
#include "platform/hosting/ViewFocus.h"
#include "platform/layout/Geometry.h"

class QKeyEvent;

namespace quorix::qt {

inline layout::Point toPoint(QPointF point) { return {point.x(), point.y()}; }

/// What a key stands for, in every surface.
enum class KeyMeaning {
  none,
  activate,  ///< a tap on what has the focus
  forward,   ///< on to the next element
  backward,
  close,  ///< what lies over the window
};
QUORIX_EXPORT KeyMeaning meaningOf(const QKeyEvent& event);

hosting::ViewFocus::Cause causeOf(Qt::FocusReason reason);

}  // namespace quorix::qt
