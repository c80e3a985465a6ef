#include "qt/widgets/WindowStateWatcher.h"

#include <QMouseEvent>
#include <QPointingDevice>
#include <QWidget>
#include <algorithm>
#include <cmath>
#include <utility>

#include "platform/render/Scene.h"
#include "qt/Surface.h"
#include "qt/widgets/ViewWidget.h"

namespace quorix::qt {
namespace {

/// How far a point beside `widget` is from it, in points; infinite where the widget takes no tap.
double distanceOf(const ViewWidget& widget, QPointF inWindow) {
  if (!widget.isEnabled() || widget.size().isEmpty()) return layout::infinity;
  const QPointF point = widget.mapFrom(widget.window(), inWindow);
  const QPointF nearest(std::clamp(point.x(), 0.0, widget.width() - 1.0),
                        std::clamp(point.y(), 0.0, widget.height() - 1.0));
  const bool seen = widget.visibleRegion().contains(nearest.toPoint());
  const double far = std::hypot(point.x() - nearest.x(), point.y() - nearest.y());
  return seen && far > 0 && far < render::Scene::roomToTap / 2 ? far : layout::infinity;
}

/// Returns whether `widget` takes the event.
bool pass(ViewWidget& widget, QMouseEvent& event) {
  QMouseEvent own(event.type(), widget.mapFrom(widget.window(), event.position()),
                  event.scenePosition(), event.globalPosition(), event.button(), event.buttons(),
                  event.modifiers(), event.pointingDevice());
  own.setTimestamp(event.timestamp());
  static_cast<QObject&>(widget).event(&own);
  event.setAccepted(own.isAccepted());
  return own.isAccepted();
}

}  // namespace

void WindowStateWatcher::watch(QWidget& window) {
  if (window.findChild<WindowStateWatcher*>(QString(), Qt::FindDirectChildrenOnly)) return;
  new WindowStateWatcher(window);
}

WindowStateWatcher::WindowStateWatcher(QWidget& window) : QObject(&window), window_(window) {
  window.installEventFilter(this);
}

bool WindowStateWatcher::eventFilter(QObject*, QEvent* event) {
  switch (event->type()) {
    case QEvent::WindowStateChange:
      Surface::forEach([this](Surface& surface) {
        if (surface.accessibleWindow() == window_.windowHandle()) surface.windowStateChanged();
      });
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

/// Whether a view widget takes a press that no child of the window took.
bool WindowStateWatcher::takesPress(QMouseEvent& press) {
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

}  // namespace quorix::qt
