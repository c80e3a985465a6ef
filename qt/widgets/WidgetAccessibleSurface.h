#pragma once

#include <QApplication>
#include <QWidget>
#include <utility>

#include "qt/Surface.h"
#include "qt/WindowScene.h"

namespace quorix::qt {

/// Implements a surface for any widget.
class WidgetAccessibleSurface : public Surface {
 public:
  WidgetAccessibleSurface(QWidget& widget, hosting::Responder& responder)
      : Surface(widget, responder), widget_(widget) {}

  void takeFocus() override { widget_.setFocus(Qt::OtherFocusReason); }
  QRect onScreen(const layout::Rect& frame) const override {
    const QPointF corner = widget_.mapToGlobal(QPointF(frame.left(), frame.top()));
    return QRectF(corner, QSizeF(frame.size.width, frame.size.height)).toRect();
  }
  QRect onScreen() const override { return {widget_.mapToGlobal(QPoint()), widget_.size()}; }
  QWindow* accessibleWindow() const override { return widget_.window()->windowHandle(); }
  QObject* accessibleParent() const override {
    return widget_.isWindow() ? static_cast<QObject*>(qApp) : widget_.parentWidget();
  }
  bool isShown() const override { return widget_.isVisible(); }
  bool isCovered() const override {
    const hosting::Responder* sheet = WindowScene::topmostOf(widget_.window());
    return sheet && sheet != &responder();
  }

 protected:
  /// Calls `prepareFrame` on a later turn, once for all calls until then.
  void prepareFrameLater() {
    if (std::exchange(frameQueued_, true)) return;
    QMetaObject::invokeMethod(
        &widget_, [this] { frameQueued_ = false, prepareFrame(); }, Qt::QueuedConnection);
  }

 private:
  /// Brings the widget up to date before a frame.
  virtual void prepareFrame() = 0;

  QWidget& widget_;
  bool frameQueued_ = false;
};

}  // namespace quorix::qt
