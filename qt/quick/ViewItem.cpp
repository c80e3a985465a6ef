#include "qt/quick/ViewItem.h"

#include <QCursor>

#include "platform/render/Scene.h"
#include "qt/Conversions.h"
#include "qt/Engine.h"
#include "qt/Input.h"
#include "qt/ViewAccessible.h"
#include "qt/quick/TapRoom.h"
#include "qt/quick/ViewSurface.h"

namespace quorix::qt {
ViewItem::ViewItem(QQuickItem* parent) : ViewItem(swiftui::View(), parent) {}

ViewItem::ViewItem(swiftui::View view, QQuickItem* parent)
    : QQuickItem(parent), surface_(std::make_unique<ViewSurface>(*this)) {
  installEngine();  // without it a view would stand still
  setFlag(ItemHasContents);
  setAcceptedMouseButtons(Qt::LeftButton);
  setAcceptTouchEvents(true);
  surface_->host().setRoot(std::move(view));
  surface_->windowChanged();
}

ViewItem::~ViewItem() { surface_->end(); }

void ViewItem::setView(swiftui::View view) { surface_->replaceView(std::move(view)); }

bool ViewItem::contains(const QPointF& point) const {
  if (QQuickItem::contains(point)) return true;
  constexpr double room = render::Scene::roomToTap / 2;
  const QRectF around = QRectF(0, 0, width(), height()).adjusted(-room, -room, room, room);
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
    // Now, since QML cuts off an item's handlers before its destructor.
    const QPointer<ViewItem> item = this;
    surface_->end();
    if (!item) return true;
  }
  // The action may delete this item: nothing is touched after it.
  return surface_->handle(*event) || QQuickItem::event(event);
}

void ViewItem::mouseUngrabEvent() { surface_->pointerLost(); }

void ViewItem::touchUngrabEvent() { surface_->pointerLost(); }

void ViewItem::hoverEnterEvent(QHoverEvent* event) { hoverMoveEvent(event); }

void ViewItem::hoverMoveEvent(QHoverEvent* event) {
  const bool tappable = surface_->takesTapAt(toPoint(event->position()));
  const auto shape = tappable ? Qt::PointingHandCursor : Qt::ArrowCursor;
  if (cursor().shape() == shape) return;
  if (tappable) {
    setCursor(shape);
  } else {
    unsetCursor();
  }
}

void ViewItem::keyPressEvent(QKeyEvent* event) {
  using hosting::Key;
  const Key key = toKeyEvent(*event).key;
  // Without a further element the window moves the focus on.
  event->setAccepted((key == Key::next || key == Key::previous) &&
                     surface_->walk(key == Key::next));
}

void ViewItem::focusInEvent(QFocusEvent* event) {
  QQuickItem::focusInEvent(event);
  surface_->focusCame(causeOf(event->reason()));
  ViewAccessible::focusChanged(*this);
}

void ViewItem::focusOutEvent(QFocusEvent* event) {
  QQuickItem::focusOutEvent(event);
  surface_->focusLeft(causeOf(event->reason()));
}

}  // namespace quorix::qt
