#pragma once

#include <QColor>
#include <QQuickItem>
#include <functional>
#include <vector>

#include "qt/SheetSurface.h"
#include "qt/quick/PictureItem.h"

class QSGRectangleNode;

namespace quorix::qt {

class SheetItem;

/// A sheet in the scene graph, below its pictures: the shade, and the panel's color from where its
/// picture ends to the window's bottom. Render thread.
class SheetNode : public QSGTransformNode {
 public:
  explicit SheetNode(QQuickWindow& window);

  void setShade(const QRectF& window, const QColor& color);
  void setBelow(const QRectF& rect, const QColor& color);

 private:
  QSGRectangleNode* shade_;
  QSGRectangleNode* below_;
};

/// Takes taps over the pages of a sheet. It is as large as the sheet, but contains only the points
/// where something acts, and the strip beside the rounded corners. Passes its events to the sheet.
class SheetFront : public QQuickItem {
 public:
  explicit SheetFront(SheetItem& sheet);

  /// Where a page is visible but takes no input.
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

/// Stands before or after an item in the focus chain, and calls `passed` when the keyboard's focus
/// reaches it.
class FocusStop : public QQuickItem {
 public:
  FocusStop(QQuickItem& parent, std::function<void()> passed)
      : QQuickItem(&parent), passed_(std::move(passed)) {
    setActiveFocusOnTab(true);
  }

 protected:
  void focusInEvent(QFocusEvent*) override {
    // On a later turn: the focus is still moving.
    QMetaObject::invokeMethod(this, passed_, Qt::QueuedConnection);
  }

 private:
  std::function<void()> passed_;
};

/// The children of a sheet, from the bottom up: the panel's picture; each page, and the picture of
/// what lies above it; what takes taps; the focus ring. Motion moves them without painting. Main
/// thread.
class SheetLayers {
 public:
  explicit SheetLayers(SheetItem& sheet) : sheet_(sheet) {}

  void setPictures(const std::vector<SheetSurface::Layer>& layers);
  /// How much of the panel its picture shows; points.
  double panelHeight() const { return panelHeight_; }
  /// Does not draw the uppermost `points` of the panel's picture.
  void hideTop(double points);
  /// The panel's top left is there now.
  void moveTo(QPointF panel);
  /// Places a page, whose top `strip` takes no input; `index` counts from the lowest.
  void place(QQuickItem& page, const QRectF& frame, double strip, int index);
  /// Hides the ring if absent; a null picture keeps the former one.
  void showRing(const std::optional<SheetSurface::Layer>& ring);

 private:
  struct Layer {
    PictureItem* item;
    QPointF origin;  ///< in the panel
  };

  PictureItem* newPicture(double z);
  void makeStops();

  SheetItem& sheet_;
  std::vector<Layer> layers_;
  PictureItem* ring_ = nullptr;
  SheetFront* front_ = nullptr;
  FocusStop* before_ = nullptr;
  FocusStop* after_ = nullptr;
  QPointF panel_;
  double panelHeight_ = 0;
};

}  // namespace quorix::qt
