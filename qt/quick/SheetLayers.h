#pragma once

#include <QPointer>
#include <memory>
#include <vector>

#include "qt/SheetSurface.h"
#include "qt/quick/FocusStop.h"
#include "qt/quick/PictureItem.h"
#include "qt/quick/SheetFront.h"

namespace quorix::qt {

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
  /// Puts a page where it belongs; `index` counts from the lowest.
  void place(QQuickItem& page, const QRectF& frame, int index);
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
