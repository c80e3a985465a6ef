#pragma once

#include <memory>
#include <optional>

#include "qt/HostedView.h"
#include "qt/quick/LayoutPlace.h"
#include "qt/quick/PictureItem.h"
#include "qt/quick/QuickAccessibleSurface.h"
#include "qt/quick/ViewItem.h"
#include "qt/quick/WindowWatcher.h"

namespace quorix::qt {

/// The private part of a view item. Main thread, except `paint`: the render thread, while the main
/// thread waits.
class ViewSurface final : public HostedView,
                          private WindowWatcher::Client,
                          public QuickAccessibleSurface {
 public:
  explicit ViewSurface(ViewItem& item);
  ~ViewSurface() override { WindowWatcher::remove(*this); }

  /// The item moved to another window, or to none.
  void windowChanged();
  void parentChanged();
  void onScreenChanged();
  void moved() { WindowWatcher::moved(*this); }
  void sizeChanged(bool width);
  void contentChanged() override;

  /// Before a frame: updates size, scene and picture.
  void polish();
  QSGNode* paint(QSGNode* old) {
    return picture_.show(old, offset_ + QPointF(part_.left(), part_.top()));
  }

 private:
  void viewNeedsDisplay() override;
  swiftui::Environment environment() const override;
  layout::Size size() const override { return {item_.width(), item_.height()}; }
  double scale() const;
  bool hasFocus() const override { return item_.hasActiveFocus(); }
  bool acceptsFocus() const override { return item_.activeFocusOnTab(); }
  void setAcceptsFocus(bool accepts) override { item_.setActiveFocusOnTab(accepts); }
  void takeFocusByPress() override { item_.forceActiveFocus(Qt::MouseFocusReason); }
  void giveFocusOn() override;
  void needsFrame() override { item_.polish(); }
  hosting::WindowSession* window() override;
  void activated() override { emit item_.activated(); }
  void sheetOpened() override { emit item_.sheetOpened(); }
  void sheetClosed(hosting::SheetCloseReason reason) override {
    emit item_.sheetClosed(static_cast<SheetCloseReason>(reason));
  }

  void windowStateChanged() override { onScreenChanged(); }
  void desktopChanged() override { settingsChanged(); }
  layout::Rect boundsInParent() const override;
  void placeMayHaveChanged() override;

  void updateImplicitSize();
  void followLayoutPlace();
  bool place();
  layout::Rect partToPaint() const;
  void paintAgain();
  void updatePicture();
  void updateRing();

  ViewItem& item_;
  std::unique_ptr<LayoutPlace> layoutPlace_;  ///< made when the view is first empty

  layout::Size ideal_;
  QPointF offset_;     ///< from the item's corner to the nearest whole device pixel
  layout::Rect seen_;  ///< the part of the item in the viewport
  layout::Rect part_;  ///< the part of the item that its picture shows
  NodePicture picture_;
  PictureItem* ring_ = nullptr;         ///< made with the first ring
  std::optional<layout::Rect> ringed_;  ///< the frame that the ring's picture is for

  bool idealStale_ = true;
  bool pictureStale_ = true;
  bool inViewport_ = false;
};

}  // namespace quorix::qt
