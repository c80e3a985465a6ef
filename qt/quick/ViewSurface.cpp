#include "qt/quick/ViewSurface.h"

#include <QGuiApplication>
#include <QQuickWindow>
#include <cmath>

#include "platform/render/Scene.h"
#include "qt/Conversions.h"
#include "qt/Desktop.h"
#include "qt/Picture.h"
#include "qt/WindowScene.h"
#include "qt/accessibility/AccessibilityBridge.h"
#include "qt/painting/FocusRing.h"
#include "qt/quick/PictureItem.h"
#include "qt/quick/SheetItem.h"

namespace quorix::qt {
namespace {

/// A view's picture in the scene graph, with the focus ring above it.
struct ViewNode : PictureNode {
  PictureNode* ring = nullptr;  ///< made with the first ring
};

}  // namespace

ViewSurface::ViewSurface(ViewItem& item)
    : HostedView(item, item.settings()), QuickAccessibleSurface(item), item_(item) {
  AccessibilityBridge::instance()->add(item, *this);
}

ViewSurface::~ViewSurface() {
  WindowWatcher::remove(*this);
  AccessibilityBridge::remove(item_);
}

double ViewSurface::scale() const {
  return item_.window() ? item_.window()->effectiveDevicePixelRatio() : qGuiApp->devicePixelRatio();
}

swiftui::Environment ViewSurface::environment() const {
  return item_.settings().over(Desktop::environment(scale()));
}

void ViewSurface::giveFocusOn() {
  QQuickItem* next = item_.nextItemInFocusChain(true);
  if (next && next != &item_ && next->activeFocusOnTab()) {
    next->forceActiveFocus(Qt::TabFocusReason);
  } else {
    item_.setFocus(false, Qt::TabFocusReason);
  }
}

hosting::WindowSession* ViewSurface::window() {
  QQuickWindow* window = item_.window();
  if (!window) return nullptr;
  const auto newSheet = [window](WindowScene & scene, const hosting::Responder* opener) -> auto& {
    return *new SheetItem(*window, scene, QuickAccessibleSurface::itemOf(opener));
  };
  return &WindowScene::of(*window, {[window] { return window; }, newSheet});
}

// Surroundings.

void ViewSurface::windowChanged() {
  leaveWindow();
  parentChanged();
  painted_ = inViewport_ = false;
  pictureStale_ = true;
  offer();
  onScreenChanged();  // before a size is needed, so that the view is evaluated once
  settingsChanged();
  if (item_.window()) enterWindow();
}

void ViewSurface::parentChanged() {
  WindowWatcher::remove(*this);
  QQuickWindow* window = item_.parentItem() ? item_.window() : nullptr;
  if (window) WindowWatcher::of(*window).add(*this, *item_.parentItem());
  if (!idealStale_) followLayoutPlace();
}

void ViewSurface::onScreenChanged() {
  host().setOnScreen(watcher() && watcher()->isWindowVisible() && item_.isVisible());
  item_.polish();
}

void ViewSurface::accessibilityBegan() {
  offer();
  item_.polish();
}

// Size.

void ViewSurface::viewNeedsDisplay() {
  idealStale_ = true;
  HostedView::viewNeedsDisplay();
}

void ViewSurface::contentChanged() {
  // At once: hosts read the implicit size of a new item before any frame.
  if (idealStale_) updateIdealSize();
}

void ViewSurface::updateIdealSize() {
  idealStale_ = false;
  ideal_ = host().sizeThatFits({});
  updateImplicitSize();
}

void ViewSurface::updateImplicitSize() {
  const bool hasWidth = item_.widthValid() && item_.width() > 0;
  const double height =
      hasWidth ? host().sizeThatFits({item_.width(), std::nullopt}).height : ideal_.height;
  followLayoutPlace();
  fitting_ = true;
  item_.setImplicitSize(ideal_.width, height);
  fitting_ = false;
}

void ViewSurface::followLayoutPlace() {
  const bool empty = ideal_ == layout::Size{};
  if (empty && !layoutPlace_) layoutPlace_ = std::make_unique<LayoutPlace>(item_);
  if (layoutPlace_) layoutPlace_->follow(empty);
}

void ViewSurface::sizeChanged(bool width) {
  resized();
  item_.polish();
  if (!width || fitting_) return;
  if (idealStale_) {
    updateIdealSize();
  } else {
    updateImplicitSize();
  }
}

// Place.

layout::Rect ViewSurface::boundsInParent() const {
  return toRect(item_.mapRectToItem(item_.parentItem(), toRect({{}, size()})));
}

void ViewSurface::placeMayHaveChanged() {
  if (isSceneStale()) return;  // `polish` will call `place`
  if (item_.isVisible() && place()) item_.polish();
}

/// Returns whether the item came into the viewport or left it, or needs a picture of another part.
bool ViewSurface::place() {
  const QTransform toWindow = item_.itemTransform(nullptr, nullptr);
  const QRectF whole(0, 0, item_.width(), item_.height());
  const QRectF viewport = WindowWatcher::viewportOf(item_);
  const bool inside = toWindow.mapRect(whole).intersects(viewport);
  seen_ = toRect(toWindow.inverted().mapRect(viewport).intersected(whole));
  const bool leftPart = inside && painted_ && !part_.contains(seen_) && part_ != partToPaint();
  pictureStale_ = pictureStale_ || leftPart;
  QPointF offset;
  if (toWindow.type() <= QTransform::TxTranslate) {
    const double pixel = 1 / scale();
    offset = QPointF(std::round(toWindow.dx() / pixel) * pixel - toWindow.dx(),
                     std::round(toWindow.dy() / pixel) * pixel - toWindow.dy());
  }
  if (inside && painted_ && offset != offset_) item_.update();
  offset_ = offset;
  return std::exchange(inViewport_, inside) != inside || leftPart;
}

layout::Rect ViewSurface::partToPaint() const {
  return render::partToPaint(size(), seen_, scale());
}

// Frame.

void ViewSurface::polish() {
  if (idealStale_) updateIdealSize();
  if (watcher()) place();
  const bool seen = watcher() && inViewport_ && item_.isVisible();
  // Also out of sight: the scene decides whether the item is in the focus chain.
  pictureStale_ = refreshScene() || pictureStale_;
  // In every frame the window visits all items that accept hovering.
  item_.setAcceptHoverEvents(seen && !host().scene(size()).hitAreas.empty());
  if (seen) {
    if (pictureStale_) updatePicture();
    updateRing();
  } else if (painted_) {
    painted_ = false;
    pictureStale_ = true;
    picture_ = {};
    item_.update();
  }
  if (rest(seen)) host().forgetSizes();  // the item has its implicit size
}

void ViewSurface::updatePicture() {
  pictureStale_ = false;
  part_ = partToPaint();
  const render::Scene& scene = host().scene(size());
  const auto paint = [&](const render::Scene& part) {
    return paintPicture(part, scale(), {0, 0, 0, 0});
  };
  picture_ = part_.size == scene.size ? paint(scene) : paint(render::partOf(scene, part_));
  painted_ = !picture_.isNull();
  ring_.reset();  // its color or scale may have changed, too
  item_.update();
}

void ViewSurface::updateRing() {
  const auto frame = ringFrame();
  if (frame == (ring_ ? std::optional(ring_->around) : std::nullopt)) return;
  ring_.reset();
  if (frame) {
    ring_ = std::make_unique<Ring>(
        Ring{*frame, FocusRing::picture(*frame, host().environment().appearance, scale())});
  }
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
    node->setPicture(window, std::exchange(picture_, {}));
  } else if (!node->hasPicture()) {
    // The scene graph was made anew while the window was hidden.
    QMetaObject::invokeMethod(
        &item_, [this] { pictureStale_ = true, item_.polish(); }, Qt::QueuedConnection);
  }
  const QPointF corner(part_.left(), part_.top());
  node->setOrigin(offset_ + corner);
  if (ring_ && !node->ring) node->appendChildNode(node->ring = new PictureNode);
  if (!ring_) {
    if (node->ring) node->ring->setPicture(window, {});
    return node;
  }
  if (!ring_->picture.isNull()) {
    node->ring->setPicture(window, std::exchange(ring_->picture, {}));
  }
  node->ring->setOrigin(FocusRing::frameAround(ring_->around).topLeft() - corner);
  return node;
}
}  // namespace quorix::qt
