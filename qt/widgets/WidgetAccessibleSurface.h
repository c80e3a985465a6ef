#pragma once

#include <QApplication>
#include <QWidget>
#include <utility>

#include "qt/HostedWindow.h"
#include "qt/Surface.h"

namespace quorix::qt {

/// Implements a surface for any widget.
class WidgetAccessibleSurface : public Surface {
 public:
  WidgetAccessibleSurface(QWidget& widget, hosting::Responder& responder)
      : Surface(widget, responder) {}

  void takeFocus() override { widget().setFocus(Qt::OtherFocusReason); }
  QRect onScreen(const layout::Rect& frame) const override {
    const QPointF corner = widget().mapToGlobal(QPointF(frame.left(), frame.top()));
    return QRectF(corner, QSizeF(frame.size.width, frame.size.height)).toRect();
  }
  QRect onScreen() const override { return {widget().mapToGlobal(QPoint()), widget().size()}; }
  QWindow* accessibleWindow() const override { return widget().window()->windowHandle(); }
  QObject* accessibleParent() const override {
    return widget().isWindow() ? static_cast<QObject*>(qApp) : widget().parentWidget();
  }
  bool isShown() const override { return widget().isVisible(); }
  bool isCovered() const override {
    const hosting::Responder* sheet = HostedWindow::topmostOf(widget().window());
    return sheet && sheet != &responder();
  }

 protected:
  /// Calls `prepareFrame` on a later turn, once for all calls until then.
  void prepareFrameLater() {
    if (std::exchange(frameQueued_, true)) return;
    QMetaObject::invokeMethod(
        &object(), [this] { frameQueued_ = false, prepareFrame(); }, Qt::QueuedConnection);
  }

 private:
  /// Brings the widget up to date before a frame.
  virtual void prepareFrame() = 0;

  QWidget& widget() const { return static_cast<QWidget&>(object()); }

  bool frameQueued_ = false;
};

}  // namespace quorix::qt
