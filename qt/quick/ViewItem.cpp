#include "qt/quick/ViewItem.h"

#include <QCursor>
#include <QLibraryInfo>
#include <QQuickWindow>
#include <QVersionNumber>
#include <algorithm>

#include "platform/render/Scene.h"
#include "qt/Conversions.h"
#include "qt/Engine.h"
#include "qt/Input.h"
#include "qt/quick/ItemSurface.h"

namespace quorix::qt {

/// A press beside a row that is smaller than a finger needs. Points.
struct TapRoom {
  const ViewItem& item;
  QPointF press;    ///< in the scene
  double distance;  ///< from the item

  /// Whether a press at `point`, beside `item` and in its coordinates, is for the item: no item of
  /// the host takes the press, and no other view is nearer. Visits every item of the window.
  static bool isFree(const ViewItem& item, QPointF point);
  /// Whether `other` or something in it takes the press before the item may.
  bool isTakenBy(const QQuickItem& other) const;
};

namespace {

constexpr double kRoom = render::Scene::roomToTap / 2;

/// A child that stands out of the item. Qt after 6.8 asks an item about presses beside it only if
/// such a child takes presses. Qt checks this at the first event, so the constructor makes it.
struct Outpost final : QQuickItem {
  static bool isNeeded() {
    static const bool needed = QLibraryInfo::version() >= QVersionNumber(6, 9);
    return needed;
  }
  explicit Outpost(ViewItem& item) : QQuickItem(&item) {
    setPosition({-kRoom, -kRoom});
    setSize({1, 1});
    setAcceptedMouseButtons(Qt::LeftButton);
  }
  bool contains(const QPointF&) const override { return false; }  // takes no press
};

/// Whether a page's content lies in `item`: it takes presses only to scroll, or to keep them from
/// what lies below.
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

layout::Point nearestIn(const QQuickItem& item, QPointF point) {
  return toRect(item.boundingRect()).nearest(toPoint(point));
}

double distanceOf(const QQuickItem& item, QPointF point) {
  return layout::distance(nearestIn(item, point), toPoint(point));
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
  if (!item.window() || isClipped(item, toPoint(nearestIn(item, point)))) return false;
  const TapRoom room{item, item.mapToScene(point), distanceOf(item, point)};
  return !room.isTakenBy(*item.window()->contentItem());
}

ViewItem::ViewItem(QQuickItem* parent) : ViewItem(swiftui::View(), parent) {}

ViewItem::ViewItem(swiftui::View view, QQuickItem* parent)
    : QQuickItem(parent), surface_(std::make_unique<ItemSurface>(*this)) {
  installEngine();  // runs the main queue, without which no view changes
  setFlag(ItemHasContents);
  setAcceptedMouseButtons(Qt::LeftButton);
  setAcceptTouchEvents(true);
  if (Outpost::isNeeded()) new Outpost(*this);
  surface_->host().setRoot(std::move(view));
  surface_->windowChanged();
}

ViewItem::~ViewItem() { surface_->end(); }

void ViewItem::setView(swiftui::View view) { surface_->replaceView(std::move(view)); }

bool ViewItem::contains(const QPointF& point) const {
  if (QQuickItem::contains(point)) return true;
  const QRectF around = boundingRect().adjusted(-kRoom, -kRoom, kRoom, kRoom);
  return around.contains(point) && surface_->takesTapAt(toPoint(point)) &&
         TapRoom::isFree(*this, point);
}

void ViewItem::settingsChanged() { surface_->settingsChanged(); }

void ViewItem::itemChange(ItemChange change, const ItemChangeData& data) {
  QQuickItem::itemChange(change, data);
  switch (change) {
    case ItemSceneChange:
      surface_->windowChanged();
      break;
    case ItemParentHasChanged:
      surface_->parentChanged();
      break;
    case ItemVisibleHasChanged:
      surface_->onScreenChanged();
      break;
    case ItemDevicePixelRatioHasChanged:
      surface_->settingsChanged();
      break;
    default:
      break;
  }
}

void ViewItem::geometryChange(const QRectF& now, const QRectF& before) {
  QQuickItem::geometryChange(now, before);
  surface_->moved();
  if (now.size() != before.size()) surface_->sizeChanged(now.width() != before.width());
}

void ViewItem::updatePolish() { surface_->polish(); }

QSGNode* ViewItem::updatePaintNode(QSGNode* old, UpdatePaintNodeData*) {
  return surface_->paint(old);
}

bool ViewItem::event(QEvent* event) {
  if (event->type() == QEvent::DeferredDelete) {
    // Ends here: QML disconnects an item's handlers before its destructor.
    const QPointer<ViewItem> item = this;
    surface_->end();
    if (!item) return true;
  }
  // The action may delete this item: nothing is touched after it.
  return passInput(*event, *surface_) || QQuickItem::event(event);
}

void ViewItem::mouseUngrabEvent() { surface_->pointerLost(); }

void ViewItem::touchUngrabEvent() { surface_->pointerLost(); }

void ViewItem::hoverEnterEvent(QHoverEvent* event) { hoverMoveEvent(event); }

void ViewItem::hoverMoveEvent(QHoverEvent* event) {
  showHand(*this, surface_->takesTapAt(toPoint(event->position())));
}

void ViewItem::keyPressEvent(QKeyEvent* event) {
  using hosting::Key;
  const Key key = toKeyEvent(*event).key;
  // After the last element the window moves the focus on.
  event->setAccepted((key == Key::next || key == Key::previous) &&
                     surface_->walk(key == Key::next));
}

void ViewItem::focusInEvent(QFocusEvent* event) {
  QQuickItem::focusInEvent(event);
  surface_->focusCame(causeOf(event->reason()));
  surface_->tellFocus(false);
}

void ViewItem::focusOutEvent(QFocusEvent* event) {
  QQuickItem::focusOutEvent(event);
  surface_->focusLeft(causeOf(event->reason()));
}

}  // namespace quorix::qt
