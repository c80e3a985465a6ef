#pragma once

#include <QGuiApplication>
#include <QQuickWindow>
#include <cmath>
#include <memory>
#include <optional>
#include <utility>

#include "platform/hosting/ViewSession.h"
#include "platform/render/Scene.h"
#include "qt/Conversions.h"
#include "qt/Desktop.h"
#include "qt/Picture.h"
#include "qt/WindowScene.h"
#include "qt/quick/LayoutPlace.h"
#include "qt/quick/PictureItem.h"
#include "qt/quick/QuickAccessibleSurface.h"
#include "qt/quick/SheetItem.h"
#include "qt/quick/ViewItem.h"
#include "qt/quick/WindowWatcher.h"
#include "qt/text/QtTextEngine.h"

namespace quorix::qt {

/// The private part of a view item. Main thread, except `paint`: the render thread, while the main
/// thread waits.
class ViewSurface final : public hosting::ViewSession,
                          private WindowWatcher::Client,
                          public QuickAccessibleSurface {
 public:
  explicit ViewSurface(ViewItem& item)
      : ViewSession(QtTextEngine::shared()), QuickAccessibleSurface(item, *this), item_(item) {}

  ~ViewSurface() override { WindowWatcher::remove(*this); }

  /// The item moved to another window, or to none.
  void windowChanged() {
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

  void parentChanged() {
    WindowWatcher::remove(*this);
    QQuickWindow* window = item_.parentItem() ? item_.window() : nullptr;
    if (window) WindowWatcher::of(*window).add(*this, *item_.parentItem());
    if (!idealStale_) followLayoutPlace();
  }

  void onScreenChanged() {
    host().setOnScreen(watcher() && watcher()->isWindowVisible() && item_.isVisible());
    item_.polish();
  }

  void moved() { WindowWatcher::moved(*this); }

  void sizeChanged(bool width) {
    resized();
    item_.polish();
    if (width) updateImplicitSize();
  }

  void contentChanged() override {
    // At once: hosts read the implicit size of a new item before any frame.
    if (idealStale_) updateImplicitSize();
  }

  /// Before a frame: updates size, scene and picture.
  void polish() {
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
      item_.update();
    }
    if (rest(seen)) host().forgetSizes();  // the item has its implicit size
  }

  QSGNode* paint(QSGNode* old) {
    return picture_.show(old, item_, offset_ + QPointF(part_.left(), part_.top()),
                         [this] { paintAgain(); });
  }

 private:
  void viewNeedsDisplay() override {
    idealStale_ = true;
    ViewSession::viewNeedsDisplay();
  }

  swiftui::Environment environment() const override {
    return item_.settings().over(Desktop::environment(scale()));
  }
  bool allowsMotion() const override { return Desktop::allowsMotion(item_.settings().motion); }

  layout::Size size() const override { return {item_.width(), item_.height()}; }

  double scale() const {
    return item_.window() ? item_.window()->effectiveDevicePixelRatio()
                          : qGuiApp->devicePixelRatio();
  }

  bool hasFocus() const override { return item_.hasActiveFocus(); }
  bool acceptsFocus() const override { return item_.activeFocusOnTab(); }
  void setAcceptsFocus(bool accepts) override { item_.setActiveFocusOnTab(accepts); }
  void takeFocusByPress() override { item_.forceActiveFocus(Qt::MouseFocusReason); }

  void giveFocusOn() override {
    QQuickItem* next = item_.nextItemInFocusChain(true);
    if (next && next != &item_ && next->activeFocusOnTab()) {
      next->forceActiveFocus(Qt::TabFocusReason);
    } else {
      item_.setFocus(false, Qt::TabFocusReason);
    }
  }

  void needsFrame() override { item_.polish(); }

  hosting::WindowSession* window() override {
    QQuickWindow* window = item_.window();
    if (!window) return nullptr;
    const auto newSheet = [window](WindowScene & scene, const hosting::Responder* opener) -> auto& {
      return newSheetItem(*window, scene, opener);
    };
    return &WindowScene::of(*window, {[window] { return window; }, newSheet});
  }

  bool isRead() const override { return areRead(); }
  void sceneChanged() override { tellScene(); }
  void focusMoved(bool later) override { tellFocus(later); }

  void activated() override { emit item_.activated(); }
  void sheetOpened() override { emit item_.sheetOpened(); }
  void sheetClosed(hosting::SheetCloseReason reason) override {
    emit item_.sheetClosed(static_cast<SheetCloseReason>(reason));
  }

  void windowStateChanged() override { onScreenChanged(); }
  void desktopChanged() override { settingsChanged(); }

  layout::Rect boundsInParent() const override {
    return toRect(item_.mapRectToItem(item_.parentItem(), toRect({{}, size()})));
  }

  void placeMayHaveChanged() override {
    if (isSceneStale()) return;  // `polish` will call `place`
    if (item_.isVisible() && place()) item_.polish();
  }

  void updateImplicitSize() {
    if (std::exchange(idealStale_, false)) ideal_ = host().sizeThatFits({});
    const bool hasWidth = item_.widthValid() && item_.width() > 0;
    const double height =
        hasWidth ? host().sizeThatFits({item_.width(), std::nullopt}).height : ideal_.height;
    followLayoutPlace();
    item_.setImplicitSize(ideal_.width, height);
  }

  void followLayoutPlace() {
    const bool empty = ideal_ == layout::Size{};
    if (empty && !layoutPlace_) layoutPlace_ = std::make_unique<LayoutPlace>(item_);
    if (layoutPlace_) layoutPlace_->follow(empty);
  }

  /// Returns whether the item came into the viewport or left it, moved by parts of a pixel, or
  /// needs a picture of another part.
  bool place() {
    const QTransform toWindow = item_.itemTransform(nullptr, nullptr);
    const QRectF whole(0, 0, item_.width(), item_.height());
    const QRectF viewport = WindowWatcher::viewportIn(item_.parentItem());
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
    const bool ringShifted = shifted && ringFrame();
    return std::exchange(inViewport_, inside) != inside || leftPart || ringShifted;
  }

  layout::Rect partToPaint() const { return render::partToPaint(size(), seen_, scale()); }

  void paintAgain() {
    pictureStale_ = true;
    ring_.paintAgain();
    item_.polish();
  }

  void updatePicture() {
    part_ = partToPaint();
    const render::Scene& scene = host().scene(size());
    const auto paint = [&](const render::Scene& part) {
      return paintPicture(part, scale(), {0, 0, 0, 0});
    };
    picture_.set(part_.size == scene.size ? paint(scene) : paint(render::partOf(scene, part_)));
    item_.update();
  }

  void updateRing() {
    ring_.follow(ringFrame(), toPoint(offset_), host().environment().appearance, scale(),
                 [this] { return std::make_unique<PictureItem>(item_, [this] { paintAgain(); }); });
  }

  ViewItem& item_;
  std::unique_ptr<LayoutPlace> layoutPlace_;  ///< made when the view is first empty

  layout::Size ideal_;
  QPointF offset_;     ///< from the item's corner to the nearest whole device pixel
  layout::Rect seen_;  ///< the part of the item in the viewport
  layout::Rect part_;  ///< the part of the item that its picture shows
  NodePicture picture_;
  hosting::RingPicture ring_;

  bool idealStale_ = true;
  bool pictureStale_ = true;
  bool inViewport_ = false;
};

}  // namespace quorix::qt
