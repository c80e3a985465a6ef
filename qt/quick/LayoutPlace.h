#pragma once

#include <QPointer>
#include <QVariant>
#include <array>

class QQuickItem;

namespace quorix::qt {

/// The place that an item has in a layout of Qt Quick Layouts. Such a layout reads an implicit size
/// of 0 as none and leaves the item the size that it had; this sets the attached `Layout`
/// properties of an item with nothing to show, so that it takes no room, and puts them back. The
/// spacing stays. Main thread.
class LayoutPlace {
 public:
  explicit LayoutPlace(QQuickItem& item) : item_(item) {}

  /// The item became empty or was filled, or has another parent.
  void follow(bool empty);

 private:
  void putBack();

  QQuickItem& item_;
  const QQuickItem* layout_ = nullptr;  ///< only compared
  QPointer<QObject> properties_;        ///< the attached object, while they are set
  std::array<const char*, 2> names_{};
  std::array<QVariant, 2> before_;
};

}  // namespace quorix::qt
