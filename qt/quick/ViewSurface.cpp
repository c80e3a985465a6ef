#include "qt/quick/ViewSurface.h"

#include <QGuiApplication>
#include <QQuickWindow>
#include <algorithm>
#include <cmath>

#include "qt/AccessibilityBridge.h"
#include "qt/FocusRing.h"
#include "qt/Picture.h"
#include "qt/quick/PictureNode.h"
#include "qt/QtTextEngine.h"
#include "qt/quick/SheetItem.h"
#include "qt/ViewAccessible.h"
#include "qt/quick/ViewItem.h"

namespace quorix::qt {
namespace {

/// A view in the scene graph: its picture, and the ring around what has the focus.
struct ViewNode : QSGTransformNode {
  ViewNode() {
    appendChildNode(picture);
    appendChildNode(ring);
  }
  PictureNode* picture = new PictureNode;
  PictureNode* ring = new PictureNode;
};

bool isFromKeyboard(Qt::FocusReason reason) {
  return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
         reason == Qt::ShortcutFocusReason;
}

/// The focus left for a while and comes back to where it was.
bool isInterruption(Qt::FocusReason reason) {
  return reason == Qt::PopupFocusReason || reason == Qt::ActiveWindowFocusReason;
}

}  // namespace

ViewSurface::ViewSurface(ViewItem& item)
    : QuickAccessibleSurface(item), item_(item), host_(QtTextEngine::shared(), *this) {
  AccessibilityBridge::instance()->add(item, *this);
}

ViewSurface::~ViewSurface() {
  if (sheet_) sheet_->abandon();
  WindowWatcher::remove(*this);
  AccessibilityBridge::instance()->remove(item_);
}

layout::Size ViewSurface::size() const { return {item_.width(), item_.height()}; }

double ViewSurface::scale() const {
  return item_.window() ? item_.window()->effectiveDevicePixelRatio() : qGuiApp->devicePixelRatio();
}

// Settings.

void ViewSurface::environmentChanged() {
  host_.setEnvironment(settings_.at(scale()));
  if (sheet_) sheet_->setSettings(settings_);
  contentChanged();
}

void ViewSurface::windowChanged() {
  if (sheet_) sheet_->abandon();
  parentChanged();
  QQuickWindow* window = item_.window();
  painted_ = inViewport_ = false;
  pictureStale_ = true;
  offer();
  onScreenChanged();  // before anyone asks for a size: the view is then evaluated once
  environmentChanged();
  if (window && (sheet_ || host_.presentation())) presentationChanged();
}

void ViewSurface::parentChanged() {
  WindowWatcher::remove(*this);
  QQuickWindow* window = item_.parentItem() ? item_.window() : nullptr;
  watcher_ = window ? &WindowWatcher::of(*window) : nullptr;
  if (watcher_) watcher_->add(*this, *item_.parentItem());
}

void ViewSurface::onScreenChanged() {
  host_.setOnScreen(watcher_ && watcher_->isWindowVisible() && item_.isVisible());
  item_.polish();
}

void ViewSurface::accessibilityBegan() {
  offer();
  item_.polish();
}

// Size.

void ViewSurface::viewNeedsDisplay() {
  idealStale_ = sceneStale_ = true;
  item_.polish();
}

void ViewSurface::contentChanged() {
  // At once: who made the item asks for its implicit size before any frame.
  if (idealStale_) updateIdealSize();
}

void ViewSurface::updateIdealSize() {
  idealStale_ = false;
  ideal_ = host_.sizeThatFits({});
  updateImplicitSize();
}

void ViewSurface::updateImplicitSize() {
  const bool hasWidth = item_.widthValid() && item_.width() > 0;
  const double height =
      hasWidth ? host_.sizeThatFits({item_.width(), std::nullopt}).height : ideal_.height;
  fitting_ = true;
  item_.setImplicitSize(ideal_.width, height);
  fitting_ = false;
}

void ViewSurface::sizeChanged(bool width) {
  sceneStale_ = true;
  item_.polish();
  if (!width || fitting_) return;
  if (idealStale_) {
    updateIdealSize();
  } else {
    updateImplicitSize();
  }
}

// Place.

QRectF ViewSurface::boundsInParent() const {
  return item_.mapRectToItem(item_.parentItem(), QRectF(0, 0, item_.width(), item_.height()));
}

void ViewSurface::placeMayHaveChanged() {
  if (item_.isVisible() && place()) item_.polish();
}

/// Returns whether the item came into the viewport or left it.
bool ViewSurface::place() {
  const QTransform toWindow = item_.itemTransform(nullptr, nullptr);
  const QRectF bounds = toWindow.mapRect(QRectF(0, 0, item_.width(), item_.height()));
  const bool inside = bounds.intersects(WindowWatcher::viewportOf(item_));
  QPointF offset;
  if (toWindow.type() <= QTransform::TxTranslate) {
    const double pixel = 1 / scale();
    offset = QPointF(std::round(toWindow.dx() / pixel) * pixel - toWindow.dx(),
                     std::round(toWindow.dy() / pixel) * pixel - toWindow.dy());
  }
  if (inside && painted_ && offset != offset_) item_.update();
  offset_ = offset;
  return std::exchange(inViewport_, inside) != inside;
}

// Frame.

void ViewSurface::polish() {
  if (idealStale_) updateIdealSize();
  if (watcher_) place();
  const bool seen = watcher_ && inViewport_ && item_.isVisible();
  // Also out of sight: the scene says whether the item takes part in the focus chain.
  if (sceneStale_) refreshScene();
  // The window asks every item that accepts hovering in every frame.
  item_.setAcceptHoverEvents(seen && !host_.scene(size()).hitAreas.empty());
  if (seen) {
    if (pictureStale_) updatePicture();
    updateRing();
  } else if (painted_) {
    painted_ = false;
    pictureStale_ = true;
    picture_ = {};
    item_.update();
  }
  if (!seen && !item_.hasActiveFocus() && !AccessibilityBridge::isActive()) host_.rest();
}

void ViewSurface::refreshScene() {
  sceneStale_ = false;
  pictureStale_ = true;
  const bool acts = actingElements() > 0;
  item_.setActiveFocusOnTab(acts);
  ViewAccessible::sceneChanged(item_);
}

int ViewSurface::actingElements() {
  const auto& elements = host_.scene(size()).accessibility;
  return static_cast<int>(std::count_if(elements.begin(), elements.end(),
                                        [](const auto& element) { return bool(element.action); }));
}

void ViewSurface::updatePicture() {
  pictureStale_ = false;
  picture_ = paintPicture(host_.scene(size()), scale(), {0, 0, 0, 0});
  painted_ = !picture_.isNull();
  ring_.reset();  // its colour and scale go with the picture's
  item_.update();
}

void ViewSurface::updateRing() {
  const auto frame = ringWanted_ ? focusedFrame() : std::nullopt;
  if (frame == ring_) return;
  ring_ = frame;
  if (frame) ringPicture_ = FocusRing::picture(*frame, host_.environment().appearance, scale());
  item_.update();
}

QSGNode* ViewSurface::paint(QSGNode* old) {
  if (!painted_) {
    delete old;
    return nullptr;
  }
  auto* node = static_cast<ViewNode*>(old);
  if (!node) node = new ViewNode;
  QQuickWindow& window = *item_.window();
  if (!picture_.isNull()) {
    node->picture->setPicture(window, std::exchange(picture_, {}));
  } else if (!node->picture->hasPicture()) {
    // The scene graph was made anew while the window was hidden.
    QMetaObject::invokeMethod(
        &item_, [this] { pictureStale_ = true, item_.polish(); }, Qt::QueuedConnection);
  }
  node->picture->setOrigin(offset_);
  if (!ring_) {
    node->ring->setPicture(window, {});
  } else if (!ringPicture_.isNull()) {
    node->ring->setPicture(window, std::exchange(ringPicture_, {}));
  }
  if (ring_) node->ring->setOrigin(FocusRing::frameAround(*ring_).topLeft() + offset_);
  return node;
}

// Input.

bool ViewSurface::takesTapAt(QPointF point) {
  return host_.scene(size()).hitTest({point.x(), point.y()}) != nullptr;
}

void ViewSurface::focusCame(Qt::FocusReason reason) {
  if (sceneStale_) refreshScene();
  if (isFromKeyboard(reason)) {
    const bool forward = reason != Qt::BacktabFocusReason;
    host_.clearFocus();
    host_.moveFocus(forward);
  } else if (!isInterruption(reason) && !host_.focusFrame() && actingElements() == 1) {
    host_.moveFocus(true);
  }
  focusMoved(isInterruption(reason) ? ringWanted_ : isFromKeyboard(reason));
}

void ViewSurface::focusWent(Qt::FocusReason reason) {
  if (isInterruption(reason)) {
    item_.polish();
    return;
  }
  host_.clearFocus();
  focusMoved(false);
}

void ViewSurface::focusMoved(bool byKeyboard) {
  ringWanted_ = byKeyboard;
  item_.polish();
  if (item_.hasActiveFocus()) ViewAccessible::focusChanged(item_);
}

// Sheet.

void ViewSurface::presentationChanged() {
  if (std::exchange(presentQueued_, true)) return;
  // The host may be in the middle of something.
  QMetaObject::invokeMethod(
      &item_, [this] { presentSheet(); }, Qt::QueuedConnection);
}

void ViewSurface::presentSheet() {
  presentQueued_ = false;
  QQuickWindow* window = item_.window();
  const swiftui::Presentation* presentation = window ? host_.presentation() : nullptr;
  const bool open = sheet_ && !sheet_->isClosed();
  if (!presentation) {
    if (open) sheet_->retract();
    return;
  }
  if (!open) sheet_ = new SheetItem(*window);
  sheet_->setSettings(settings_);
  sheet_->present(*presentation);
}

// Accessibility.

const std::vector<render::AccessibilityElement>& ViewSurface::accessibilityElements() {
  return host_.scene(size()).accessibility;
}

std::optional<layout::Rect> ViewSurface::focusedFrame() const {
  return item_.hasActiveFocus() ? host_.focusFrame() : std::nullopt;
}

}  // namespace quorix::qt
