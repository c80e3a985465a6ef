#pragma once

#include <QGuiApplication>
#include <QQuickWindow>
#include <memory>
#include <optional>

#include "platform/render/Scene.h"
#include "qt/Conversions.h"
#include "qt/Desktop.h"
#include "qt/HostedView.h"
#include "qt/Picture.h"
#include "qt/quick/LayoutPlace.h"
#include "qt/quick/PictureItem.h"
#include "qt/quick/QuickAccessibleSurface.h"
#include "qt/quick/SheetItem.h"
#include "qt/quick/ViewItem.h"
#include "qt/quick/WindowWatcher.h"

namespace quorix::qt {

/// The private part of a view item. Main thread, except `paint`: the render thread, while the main
/// thread waits.
class ItemSurface final : public HostedView<ViewItem, QuickAccessibleSurface>,
                          private WindowWatcher::Views::View {
 public:
  explicit ItemSurface(ViewItem& item) : HostedView(item, item.settings()) {}

  /// The item moved to another window, or to none.
  void windowChanged() {
    leaveWindow();
    part_ = {};
    picture_.set({});
    parentChanged();
    offer();
    onScreenChanged();  // before a size is needed, so that the view is evaluated once
    settingsChanged();
    if (shown_.window()) enterWindow();
  }

  void parentChanged() {
    QQuickItem* parent = shown_.parentItem();
    QQuickWindow* window = parent ? shown_.window() : nullptr;
    window ? enter(WindowWatcher::viewsOf(*window), *parent) : leave();
    if (!isSizeStale()) followLayoutPlace();
  }

  using View::moved;

  void sizeChanged(bool width) {
    resized();
    shown_.polish();
    if (width) updateImplicitSize();
  }

  void contentChanged() override {
    // At once: hosts read the implicit size of a new item before any frame.
    if (isSizeStale()) updateImplicitSize();
  }

  /// Before a frame: updates size, scene and picture.
  void polish() {
    if (isSizeStale()) updateImplicitSize();
    if (isInWindow()) place();
    const bool seen = isInWindow() && part_.isInSight() && shown_.isVisible();
    // Also out of sight: the scene decides whether the item is in the focus chain.
    if (refreshScene()) part_.changed();
    // In every frame the window visits all items that accept hovering.
    shown_.setAcceptHoverEvents(seen && !host().scene(size()).hitAreas.empty());
    if (seen) {
      updateRing();
      if (part_.takeStale()) paintPart();
    } else if (!picture_.isNull()) {
      part_.changed();
      show({});
    }
    if (rest(seen)) host().forgetSizes();  // the item has its implicit size
  }

  QSGNode* paint(QSGNode* old) {
    const QPointF corner = toPoint(part_.painted().origin);
    return picture_.show(old, shown_, offset() + corner, [this] { paintAgain(); });
  }

 private:
  bool isOnScreen() const override {
    return isInWindow() && isShown() && shown_.window()->visibility() != QWindow::Minimized;
  }

  swiftui::Environment environment() const override {
    return shown_.settings().over(Desktop::environment(scale()));
  }

  double scale() const {
    return shown_.window() ? shown_.window()->effectiveDevicePixelRatio()
                           : qGuiApp->devicePixelRatio();
  }

  bool hasFocus() const override { return shown_.hasActiveFocus(); }
  bool acceptsFocus() const override { return shown_.activeFocusOnTab(); }
  void setAcceptsFocus(bool accepts) override { shown_.setActiveFocusOnTab(accepts); }
  void takeFocusByPress() override { shown_.forceActiveFocus(Qt::MouseFocusReason); }

  void giveFocusOn() override {
    QQuickItem* next = shown_.nextItemInFocusChain(true);
    if (next && next != &shown_ && next->activeFocusOnTab()) {
      next->forceActiveFocus(Qt::TabFocusReason);
    } else {
      shown_.setFocus(false, Qt::TabFocusReason);
    }
  }

  void needsFrame() override { shown_.polish(); }

  hosting::WindowSession* window() override {
    return shown_.window() ? &sessionOf(*shown_.window()) : nullptr;
  }

  layout::Rect boundsInParent() const override {
    return toRect(shown_.mapRectToItem(shown_.parentItem(), toRect({{}, size()})));
  }

  void placeMayHaveChanged() override {
    if (isSceneStale()) return;  // `polish` will call `place`
    if (shown_.isVisible() && place()) shown_.polish();
  }

  void updateImplicitSize() {
    if (takeSizeStale()) ideal_ = host().sizeThatFits({});
    const bool hasWidth = shown_.widthValid() && shown_.width() > 0;
    const double height =
        hasWidth ? host().sizeThatFits({shown_.width(), std::nullopt}).height : ideal_.height;
    followLayoutPlace();
    shown_.setImplicitSize(ideal_.width, height);
  }

  void followLayoutPlace() {
    const bool empty = ideal_ == layout::Size{};
    if (empty && !layoutPlace_) layoutPlace_ = std::make_unique<LayoutPlace>(shown_);
    if (layoutPlace_) layoutPlace_->follow(empty);
  }

  /// Returns whether the item needs a frame to be prepared.
  bool place() {
    const QPointF before = offset();
    const bool needsFrame =
        part_.follow(WindowWatcher::placeOf(shown_, *shown_.parentItem()), size(), scale());
    const bool shifted = before != offset() && !picture_.isNull();
    if (shifted) shown_.update();
    return needsFrame || (shifted && ringFrame());
  }

  QPointF offset() const { return toPoint(part_.offset()); }

  void paintAgain() {
    part_.changed();
    ring_.paintAgain();
    shown_.polish();
  }

  void paintPart() {
    const render::Scene& scene = host().scene(size());
    const bool isWhole = part_.painted().size == scene.size;
    const render::Scene part = isWhole ? render::Scene() : partOf(scene, part_.painted());
    show(paintPicture(isWhole ? scene : part, scale(), {0, 0, 0, 0}));
  }

  void show(const QImage& picture) {
    picture_.set(picture);
    shown_.update();
  }

  void updateRing() {
    ring_.follow(ringFrame(), part_.offset(), host().environment().appearance, scale(), [this] {
      return std::make_unique<PictureItem>(shown_, [this] { paintAgain(); });
    });
  }

  std::unique_ptr<LayoutPlace> layoutPlace_;  ///< made when the view is first empty

  layout::Size ideal_;
  hosting::PicturePart part_;
  NodePicture picture_;
  hosting::RingPicture ring_;
};

}  // namespace quorix::qt
