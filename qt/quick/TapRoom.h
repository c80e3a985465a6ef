#pragma once

#include <QPointF>

class QQuickItem;

namespace quorix::qt {

class ViewItem;

/// A press beside a row that is smaller than a finger needs.
struct TapRoom {
  const ViewItem& item;
  QPointF press;    ///< in the scene
  double distance;  ///< from the item

  /// Whether a press at `point`, beside `item` and in its units, may be for it: nothing of the
  /// host's takes the press there, and no other view is nearer. Looks at every item of the window.
  static bool isFree(const ViewItem& item, QPointF point);
  /// Whether `other` or something in it takes the press before the item may.
  bool isTakenBy(const QQuickItem& other) const;
};

}  // namespace quorix::qt
