#include "qt/quick/TapRoom.h"

#include <QQuickWindow>
#include <algorithm>
#include <cmath>

#include "qt/Conversions.h"
#include "qt/quick/ViewItem.h"
#include "qt/quick/ViewSurface.h"

namespace quorix::qt {
namespace {

/// What a page stands on. It takes presses too, to scroll or to keep them from what lies below.
bool isGround(const QQuickItem& item) {
  constexpr const char* kTypes[] = {"QQuickFlickable", "QQuickPane", "QQuickPopupItem",
                                    "QQuickOverlay"};
  return std::ranges::any_of(kTypes, [&](const char* type) { return item.inherits(type); });
}

bool isPressHandler(const QObject* child) {
  return child->inherits("QQuickPointerHandler") && !child->inherits("QQuickHoverHandler") &&
         !child->inherits("QQuickWheelHandler");
}

bool takesPresses(const QQuickItem& item) {
  return item.acceptedMouseButtons().testFlag(Qt::LeftButton) || item.acceptTouchEvents() ||
         std::ranges::any_of(item.children(), isPressHandler);
}

QPointF nearestIn(const QQuickItem& item, QPointF point) {
  const auto nearest = [](double at, double length) { return std::min(std::max(at, 0.0), length); };
  return {nearest(point.x(), item.width()), nearest(point.y(), item.height())};
}

double distanceOf(const QQuickItem& item, QPointF point) {
  const QPointF way = point - nearestIn(item, point);
  return std::hypot(way.x(), way.y());
}

/// Whether `point` of `item` is scrolled out of sight.
bool isClipped(const QQuickItem& item, QPointF point) {
  for (const QQuickItem* in = item.parentItem(); in; in = in->parentItem()) {
    if (in->clip() && !in->clipRect().contains(in->mapFromItem(&item, point))) return true;
  }
  return false;
}

}  // namespace

bool TapRoom::isTakenBy(const QQuickItem& other) const {
  if (!other.isVisible() || !other.isEnabled()) return false;
  const QPointF point = other.mapFromScene(press);
  if (other.clip() && !other.clipRect().contains(point)) return false;
  const auto children = other.childItems();
  if (std::ranges::any_of(children, [&](auto* child) { return isTakenBy(*child); })) return true;
  if (&other == &item) return false;
  if (const auto* view = qobject_cast<const ViewItem*>(&other)) {
    return distanceOf(other, point) < distance && view->surface_->takesTapAt(toPoint(point));
  }
  if (!takesPresses(other) || !other.contains(point)) return false;
  return !isGround(other) || !other.isAncestorOf(&item);
}

bool TapRoom::isFree(const ViewItem& item, QPointF point) {
  if (!item.window() || isClipped(item, nearestIn(item, point))) return false;
  const TapRoom room{item, item.mapToScene(point), distanceOf(item, point)};
  return !room.isTakenBy(*item.window()->contentItem());
}

}  // namespace quorix::qt
