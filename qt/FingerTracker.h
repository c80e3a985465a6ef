#pragma once

#include <QPointF>
#include <optional>

class QTouchEvent;

namespace quorix::qt {

/// Follows the first finger of a touch through its events and leaves the others alone.
class FingerTracker {
 public:
  enum class Phase { pressed, moved, released, cancelled };
  struct Report {
    Phase phase;
    QPointF position;  ///< in the item's points
  };

  /// What `event` says about the finger; nothing when it is about others.
  std::optional<Report> read(const QTouchEvent& event);
  void forget() { finger_.reset(); }

 private:
  std::optional<int> finger_;
};

}  // namespace quorix::qt
