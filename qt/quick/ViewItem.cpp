#include "qt/quick/ViewItem.h"

#include <QCursor>

#include "qt/Engine.h"
#include "qt/Input.h"
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

ViewItem::~ViewItem() = default;

void ViewItem::setView(swiftui::View view) {
  surface_->host().setRoot(std::move(view));
  surface_->contentChanged();
}

void ViewItem::setAppearance(std::optional<graphics::Appearance> appearance) {
  surface_->settings().appearance = appearance;
  surface_->environmentChanged();
}

void ViewItem::setLayoutDirection(std::optional<layout::LayoutDirection> direction) {
  surface_->settings().direction = direction;
  surface_->environmentChanged();
}

void ViewItem::setTextSize(swiftui::ContentSizeCategory category) {
  surface_->settings().textSize = category;
  surface_->environmentChanged();
}

void ViewItem::setMotion(std::optional<bool> motion) {
  surface_->settings().motion = motion;
  surface_->environmentChanged();
}

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
      surface_->environmentChanged();
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

void ViewItem::mousePressEvent(QMouseEvent* event) {
  if (!surface_->host().pointerPressed(toPoint(event->position()))) {
    event->ignore();
    return;
  }
  if (activeFocusOnTab()) forceActiveFocus(Qt::MouseFocusReason);
}

// The action may delete this item: nothing is touched after it.

void ViewItem::mouseReleaseEvent(QMouseEvent* event) {
  surface_->host().pointerReleased(toPoint(event->position()));
}

void ViewItem::mouseUngrabEvent() { surface_->host().pointerCancelled(); }

void ViewItem::touchEvent(QTouchEvent* event) {
  const auto report = surface_->finger().read(*event);
  if (!report) return;
  switch (report->phase) {
    case FingerTracker::Phase::pressed:
      if (surface_->host().pointerPressed(toPoint(report->position))) return;
      surface_->finger().forget();
      event->ignore();
      return;
    case FingerTracker::Phase::moved:
      return;
    case FingerTracker::Phase::released:
      surface_->host().pointerReleased(toPoint(report->position));
      return;
    case FingerTracker::Phase::cancelled:
      surface_->host().pointerCancelled();
      return;
  }
}

void ViewItem::touchUngrabEvent() {
  surface_->finger().forget();
  surface_->host().pointerCancelled();
}

void ViewItem::hoverEnterEvent(QHoverEvent* event) { hoverMoveEvent(event); }

void ViewItem::hoverMoveEvent(QHoverEvent* event) {
  const bool tappable = surface_->takesTapAt(event->position());
  const auto shape = tappable ? Qt::PointingHandCursor : Qt::ArrowCursor;
  if (cursor().shape() == shape) return;
  if (tappable) {
    setCursor(shape);
  } else {
    unsetCursor();
  }
}

void ViewItem::keyPressEvent(QKeyEvent* event) {
  const bool back = event->key() == Qt::Key_Backtab ||
                    (event->key() == Qt::Key_Tab && event->modifiers() & Qt::ShiftModifier);
  if (back || event->key() == Qt::Key_Tab) {
    // Without a further element the window moves the focus on.
    event->setAccepted(surface_->host().moveFocus(!back));
    surface_->focusMoved(true);
  } else if (activates(event->key())) {
    if (event->isAutoRepeat()) return;
    event->setAccepted(surface_->host().focusFrame().has_value());
    surface_->host().activateFocus();
  } else {
    event->ignore();
  }
}

void ViewItem::focusInEvent(QFocusEvent* event) {
  QQuickItem::focusInEvent(event);
  surface_->focusCame(event->reason());
}

void ViewItem::focusOutEvent(QFocusEvent* event) {
  QQuickItem::focusOutEvent(event);
  surface_->focusWent(event->reason());
}

}  // namespace quorix::qt
