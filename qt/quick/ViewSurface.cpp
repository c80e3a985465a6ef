#include "qt/quick/ViewSurface.h"

#include <QGuiApplication>
#include <QQuickWindow>
#include <cmath>

#include "platform/render/Scene.h"
#include "qt/Conversions.h"
#include "qt/Desktop.h"
#include "qt/Picture.h"
#include "qt/WindowScene.h"
#include "qt/painting/FocusRing.h"
#include "qt/quick/SheetItem.h"

namespace quorix::qt {
ViewSurface::ViewSurface(ViewItem& item)
    : HostedView(item, item.settings()),
      QuickAccessibleSurface(item, *this),
      item_(item),
      picture_(item, [this] { paintAgain(); }) {}

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
    return newSheetItem(*window, scene, opener);
  };
  return &WindowScene::of(*window, {[window] { return window; }, newSheet});
}

// Surroundings.

void ViewSurface::windowChanged() {
  leaveWindow();
  parentChanged();
  inViewport_ = false;
  pictureStale_ = true;
  picture_.set({});
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

// Size.

void ViewSurface::viewNeedsDisplay() {
  idealStale_ = true;
  HostedView::viewNeedsDisplay();
}

void ViewSurface::contentChanged() {
  // At once: hosts read the implicit size of a new item before any frame.
  if (idealStale_) updateImplicitSize();
}

void ViewSurface::updateImplicitSize() {
  if (std::exchange(idealStale_, false)) ideal_ = host().sizeThatFits({});
  const bool hasWidth = item_.widthValid() && item_.width() > 0;
  const double height =
      hasWidth ? host().sizeThatFits({item_.width(), std::nullopt}).height : ideal_.height;
  followLayoutPlace();
  item_.setImplicitSize(ideal_.width, height);
}

void ViewSurface::followLayoutPlace() {
  const bool empty = ideal_ == layout::Size{};
  if (empty && !layoutPlace_) layoutPlace_ = std::make_unique<LayoutPlace>(item_);
  if (layoutPlace_) layoutPlace_->follow(empty);
}

void ViewSurface::sizeChanged(bool width) {
  resized();
  item_.polish();
  if (width) updateImplicitSize();
}

// Place.

layout::Rect ViewSurface::boundsInParent() const {
  return toRect(item_.mapRectToItem(item_.parentItem(), toRect({{}, size()})));
}

void ViewSurface::placeMayHaveChanged() {
  if (isSceneStale()) return;  // `polish` will call `place`
  if (item_.isVisible() && place()) item_.polish();
}

/// Returns whether the item came into the viewport or left it, moved by parts of a pixel, or needs
/// a picture of another part.
bool ViewSurface::place() {
  const QTransform toWindow = item_.itemTransform(nullptr, nullptr);
  const QRectF whole(0, 0, item_.width(), item_.height());
  const QRectF viewport = WindowWatcher::viewportOf(item_);
  const bool inside = toWindow.mapRect(whole).intersects(viewport);
  seen_ = toRect(toWindow.inverted().mapRect(viewport).intersected(whole));
  const bool painted = inside && !picture_.isNull();
  const bool leftPart = painted && !part_.contains(seen_) && part_ != partToPaint();
  pictureStale_ = pictureStale_ || leftPart;
  QPointF offset;
  if (toWindow.type() <= QTransform::TxTranslate) {
    const double pixel = 1 / scale();
    offset = QPointF(std::round(toWindow.dx() / pixel) * pixel - toWindow.dx(),
                     std::round(toWindow.dy() / pixel) * pixel - toWindow.dy());
  }
  const bool shifted = std::exchange(offset_, offset) != offset && painted;
  if (shifted) item_.update();
  return std::exchange(inViewport_, inside) != inside || leftPart || shifted;
}

layout::Rect ViewSurface::partToPaint() const {
  return render::partToPaint(size(), seen_, scale());
}

// Frame.

void ViewSurface::polish() {
  if (idealStale_) updateImplicitSize();
  if (watcher()) place();
  const bool seen = watcher() && inViewport_ && item_.isVisible();
  // Also out of sight: the scene decides whether the item is in the focus chain.
  pictureStale_ = refreshScene() || pictureStale_;
  // In every frame the window visits all items that accept hovering.
  item_.setAcceptHoverEvents(seen && !host().scene(size()).hitAreas.empty());
  if (seen) {
    updateRing();
    if (std::exchange(pictureStale_, false)) updatePicture();
  } else if (!picture_.isNull()) {
    pictureStale_ = true;
    picture_.set({});
  }
  if (rest(seen)) host().forgetSizes();  // the item has its implicit size
}

void ViewSurface::paintAgain() {
  pictureStale_ = true;
  item_.polish();
}

void ViewSurface::updatePicture() {
  part_ = partToPaint();
  const render::Scene& scene = host().scene(size());
  const auto paint = [&](const render::Scene& part) {
    return paintPicture(part, scale(), {0, 0, 0, 0});
  };
  picture_.set(part_.size == scene.size ? paint(scene) : paint(render::partOf(scene, part_)));
}

void ViewSurface::updateRing() {
  const auto around = ringFrame();
  if (around != ringed_ || (around && pictureStale_)) {
    ringed_ = around;
    if (!ring_) ring_ = new PictureItem(item_, [this] { paintAgain(); });
    ring_->setPicture(around ? FocusRing::picture(*around, host().environment().appearance, scale())
                             : QImage());
  }
  if (around) ring_->moveTo(offset_ + FocusRing::frameAround(*around).topLeft());
}

}  // namespace quorix::qt
