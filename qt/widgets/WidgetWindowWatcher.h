#pragma once

#include <QMouseEvent>
#include <QPointer>
#include <QPointingDevice>
#include <QWidget>
#include <utility>

#include "platform/render/Scene.h"
#include "qt/Conversions.h"
#include "qt/Surface.h"
#include "qt/widgets/ViewWidget.h"

namespace quorix::qt {

/// Watches a window for its view widgets. Tells them when the window is minimized or restored,
/// which Qt tells only the window. Gives a widget that is smaller than a finger needs the taps of
/// fingers beside it, where no widget of the host takes them. Belongs to the window; main thread.
class WidgetWindowWatcher : public QObject {
  Q_OBJECT

 public:
  /// Does nothing for a window that is watched.
  static void watch(QWidget& window) {
    if (window.findChild<WidgetWindowWatcher*>(QString(), Qt::FindDirectChildrenOnly)) return;
    new WidgetWindowWatcher(window);
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
        return pressed_ && pass(*pressed_, Phase::moved, static_cast<QMouseEvent&>(*event));
      case QEvent::MouseButtonRelease: {
        auto& release = static_cast<QMouseEvent&>(*event);
        if (release.button() != Qt::LeftButton) return false;
        const QPointer<ViewWidget> pressed = std::exchange(pressed_, nullptr);
        return pressed && pass(*pressed, Phase::released, release);
      }
      default:
        return false;
    }
  }

 private:
  using Phase = hosting::PointerEvent::Phase;

  explicit WidgetWindowWatcher(QWidget& window) : QObject(&window), window_(window) {
    window.installEventFilter(this);
  }

  /// Whether a view widget takes a press that no child of the window took.
  bool takesPress(QMouseEvent& press) {
    pressed_ = nullptr;
    const bool byFinger = press.pointingDevice()->type() == QInputDevice::DeviceType::TouchScreen;
    if (!byFinger || press.button() != Qt::LeftButton) return false;
    double least = layout::infinity;
    for (ViewWidget* widget : window_.findChildren<ViewWidget*>()) {
      const double distance = distanceOf(*widget, press.position());
      if (distance >= least || widget->window() != &window_) continue;
      least = distance;
      pressed_ = widget;
    }
    if (!pressed_) return false;
    // The window itself comes first. The host may have derived it, and may even delete it.
    const QPointer<WidgetWindowWatcher> self = this;
    static_cast<QObject&>(window_).event(&press);
    if (!self) return true;
    const bool taken = !press.isAccepted() && pressed_ && pass(*pressed_, Phase::pressed, press);
    if (!taken) pressed_ = nullptr;
    return true;
  }

  /// How far a point beside `widget` is from it, in points; infinite where the widget takes no tap.
  static double distanceOf(const ViewWidget& widget, QPointF inWindow) {
    if (!widget.isEnabled() || widget.size().isEmpty()) return layout::infinity;
    const layout::Point point = toPoint(widget.mapFrom(widget.window(), inWindow));
    const layout::Rect pixels{{}, {widget.width() - 1.0, widget.height() - 1.0}};
    const layout::Point nearest = pixels.nearest(point);
    const bool seen = widget.visibleRegion().contains(toPoint(nearest).toPoint());
    const double far = layout::distance(point, nearest);
    return seen && far > 0 && far < render::Scene::roomToTap / 2 ? far : layout::infinity;
  }

  /// Returns whether `widget` takes the event.
  static bool pass(const ViewWidget& widget, Phase phase, QMouseEvent& event) {
    const QPointF point = widget.mapFrom(widget.window(), event.position());
    const hosting::PointerEvent passed{phase, toPoint(point), double(event.timestamp())};
    event.setAccepted(widget.isEnabled() && Surface::of(&widget)->responder().handle(passed));
    return event.isAccepted();
  }

  QWidget& window_;
  QPointer<ViewWidget> pressed_;  ///< a finger beside it is down
};

}  // namespace quorix::qt
