#pragma once

#include <QMouseEvent>
#include <QPointer>
#include <QPointingDevice>
#include <QWidget>
#include <algorithm>
#include <cmath>
#include <utility>

#include "platform/render/Scene.h"
#include "qt/Surface.h"
#include "qt/widgets/ViewWidget.h"

namespace quorix::qt {

/// Watches a window for its view widgets. Tells them when the window is minimized or restored,
/// which Qt tells only the window. Gives a widget that is smaller than a finger needs the taps of
/// fingers beside it, where no widget of the host takes them. Belongs to the window; main thread.
class WindowStateWatcher : public QObject {
  Q_OBJECT

 public:
  /// Does nothing for a window that is watched.
  static void watch(QWidget& window) {
    if (window.findChild<WindowStateWatcher*>(QString(), Qt::FindDirectChildrenOnly)) return;
    new WindowStateWatcher(window);
  }

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    switch (event->type()) {
      case QEvent::WindowStateChange:
        Surface::tellWindowState(window_.windowHandle());
        return false;
      case QEvent::MouseButtonPress:
      case QEvent::MouseButtonDblClick:
        return takesPress(static_cast<QMouseEvent&>(*event));
      case QEvent::MouseMove:
        return pressed_ && pass(*pressed_, static_cast<QMouseEvent&>(*event));
      case QEvent::MouseButtonRelease: {
        const QPointer<ViewWidget> pressed = std::exchange(pressed_, nullptr);
        return pressed && pass(*pressed, static_cast<QMouseEvent&>(*event));
      }
      default:
        return false;
    }
  }

 private:
  explicit WindowStateWatcher(QWidget& window) : QObject(&window), window_(window) {
    window.installEventFilter(this);
  }

  /// Whether a view widget takes a press that no child of the window took.
  bool takesPress(QMouseEvent& press) {
    pressed_ = nullptr;
    const bool byFinger = press.pointingDevice()->type() == QInputDevice::DeviceType::TouchScreen;
    if (!byFinger) return false;
    double least = layout::infinity;
    for (ViewWidget* widget : window_.findChildren<ViewWidget*>()) {
      const double distance = distanceOf(*widget, press.position());
      if (distance >= least || widget->window() != &window_) continue;
      least = distance;
      pressed_ = widget;
    }
    if (!pressed_) return false;
    // The window itself comes first. The host may have derived it, and may even delete it.
    const QPointer<WindowStateWatcher> self = this;
    static_cast<QObject&>(window_).event(&press);
    if (!self) return true;
    if (press.isAccepted() || !pressed_ || !pass(*pressed_, press)) pressed_ = nullptr;
    return true;
  }

  /// How far a point beside `widget` is from it, in points; infinite where the widget takes no tap.
  static double distanceOf(const ViewWidget& widget, QPointF inWindow) {
    if (!widget.isEnabled() || widget.size().isEmpty()) return layout::infinity;
    const QPointF point = widget.mapFrom(widget.window(), inWindow);
    const QPointF nearest(std::clamp(point.x(), 0.0, widget.width() - 1.0),
                          std::clamp(point.y(), 0.0, widget.height() - 1.0));
    const bool seen = widget.visibleRegion().contains(nearest.toPoint());
    const double far = std::hypot(point.x() - nearest.x(), point.y() - nearest.y());
    return seen && far > 0 && far < render::Scene::roomToTap / 2 ? far : layout::infinity;
  }

  /// Returns whether `widget` takes the event.
  static bool pass(ViewWidget& widget, QMouseEvent& event) {
    QMouseEvent own(event.type(), widget.mapFrom(widget.window(), event.position()),
                    event.scenePosition(), event.globalPosition(), event.button(), event.buttons(),
                    event.modifiers(), event.pointingDevice());
    own.setTimestamp(event.timestamp());
    static_cast<QObject&>(widget).event(&own);
    event.setAccepted(own.isAccepted());
    return own.isAccepted();
  }

  QWidget& window_;
  QPointer<ViewWidget> pressed_;  ///< a finger beside it is down
};

}  // namespace quorix::qt
