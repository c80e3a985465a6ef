#include "qt/widgets/WidgetAccessibleSurface.h"

#include <QApplication>
#include <QWidget>

#include "qt/widgets/SheetWidget.h"

namespace quorix::qt {

void WidgetAccessibleSurface::takeFocus() { widget_.setFocus(Qt::OtherFocusReason); }

QRect WidgetAccessibleSurface::onScreen(const layout::Rect& frame) const {
  const QPointF corner = widget_.mapToGlobal(QPointF(frame.left(), frame.top()));
  return QRectF(corner, QSizeF(frame.size.width, frame.size.height)).toRect();
}

QRect WidgetAccessibleSurface::onScreen() const {
  return {widget_.mapToGlobal(QPoint()), widget_.size()};
}

QWindow* WidgetAccessibleSurface::accessibleWindow() const {
  return widget_.window()->windowHandle();
}

QObject* WidgetAccessibleSurface::accessibleParent() const {
  if (!widget_.isWindow()) return widget_.parentWidget();
  return qApp;
}

bool WidgetAccessibleSurface::isShown() const { return widget_.isVisible(); }

bool WidgetAccessibleSurface::isCovered() const {
  const SheetWidget* sheet = SheetWidget::topmost(*widget_.window());
  return sheet && sheet != &widget_ && !sheet->isAncestorOf(&widget_);
}

}  // namespace quorix::qt
