#include "qt/quick/SheetFront.h"

#include <QCursor>

#include "qt/Conversions.h"
#include "qt/quick/SheetItem.h"

namespace quorix::qt {

SheetFront::SheetFront(SheetItem& sheet) : QQuickItem(&sheet), sheet_(sheet) {
  setAcceptedMouseButtons(Qt::AllButtons);
  setAcceptTouchEvents(true);
  setAcceptHoverEvents(true);
  setCursor(Qt::PointingHandCursor);
}

bool SheetFront::contains(const QPointF& point) const { return sheet_.takesTapAt(toPoint(point)); }

bool SheetFront::event(QEvent* event) { return sheet_.handle(*event) || QQuickItem::event(event); }

void SheetFront::mouseUngrabEvent() { sheet_.pointerLost(); }

void SheetFront::touchUngrabEvent() { sheet_.pointerLost(); }

}  // namespace quorix::qt
