#pragma once

#include <QColor>
#include <QQuickItem>
#include <functional>
#include <memory>
#include <vector>

#include "qt/SheetSurface.h"
#include "qt/quick/PictureItem.h"

class QSGRectangleNode;

namespace quorix::qt {

class SheetItem;

/// A sheet in the scene graph: the shade, the panel's picture, and its color on to the window's
/// bottom. Motion moves these and paints nothing. Render thread.
class SheetNode : public QSGTransformNode {
 public:
  explicit SheetNode(QQuickWindow& window);

  PictureNode& panel() { return *panel_; }

  void setShade(const QRectF& window, const QColor& color);
  void setBelow(const QRectF& rect, const QColor& color);

 private:
  QSGRectangleNode* shade_;
  QSGRectangleNode* below_;
  PictureNode* panel_;
};

/// What lies over the pages of a sheet and takes taps: as large as the sheet, but there only where
/// something acts, and beside the rounded corners. What comes to it goes to the sheet.
class SheetFront : public QQuickItem {
 public:
  explicit SheetFront(SheetItem& sheet);

  /// Where a page is seen but takes no input.
  void setStrip(const QRectF& strip) { strip_ = strip; }
  bool contains(const QPointF& point) const override;

 protected:
  bool event(QEvent* event) override;
  void hoverEnterEvent(QHoverEvent* event) override { hoverMoveEvent(event); }
  void hoverMoveEvent(QHoverEvent* event) override;
  void mouseUngrabEvent() override;
  void touchUngrabEvent() override;

 private:
  SheetItem& sheet_;
  QRectF strip_;
};

/// Stands before or after an item in the focus chain and says when the keyboard comes by.
class FocusStop : public QQuickItem {
 public:
  FocusStop(QQuickItem& parent, std::function<void()> passed)
      : QQuickItem(&parent), passed_(std::move(passed)) {
    setActiveFocusOnTab(true);
  }

 protected:
  void focusInEvent(QFocusEvent*) override {
    // Not while the focus is still moving.
    QMetaObject::invokeMethod(this, passed_, Qt::QueuedConnection);
  }

 private:
  std::function<void()> passed_;
};

/// What stands in and over a sheet with pages, from the bottom up: each page, then the picture of
/// what lies above it; at last what takes taps, and the focus ring. All are children of the sheet.
/// Main thread.
class SheetLayers {
 public:
  explicit SheetLayers(SheetItem& sheet) : sheet_(sheet) {}

  /// The layers but the first, which the sheet paints itself.
  void setPictures(const std::vector<SheetSurface::Layer>& layers);
  /// Where the panel's top left is.
  void moveTo(QPointF panel);
  /// Puts a page where it belongs, the top `strip` of it for the eye alone; `index` counts from the
  /// lowest.
  void place(QQuickItem& page, const QRectF& frame, double strip, int index);
  /// Hides an absent ring; a null picture leaves the one before.
  void showRing(const std::optional<SheetSurface::Layer>& ring);

 private:
  struct Layer {
    PictureItem* item;
    QPointF origin;  ///< in the panel
  };

  void makeStops();

  SheetItem& sheet_;
  std::vector<Layer> layers_;
  PictureItem* ring_ = nullptr;
  SheetFront* front_ = nullptr;
  FocusStop* before_ = nullptr;
  FocusStop* after_ = nullptr;
  QPointF panel_;
};

}  // namespace quorix::qt
