#pragma once

#include <QPointer>
#include <QVariant>
#include <array>

class QQuickItem;

namespace quorix::qt {

/// Keeps an empty item from taking room in a layout of Qt Quick Layouts. Such a layout reads an
/// implicit size of 0 as unset, and the item keeps its former size. While the item is empty, its
/// attached `Layout` properties are set to 0; then the host's values are restored. The spacing
/// stays. Main thread.
class LayoutPlace {
 public:
  explicit LayoutPlace(QQuickItem& item) : item_(item) {}

  /// The item became empty, was filled, or has another parent.
  void follow(bool empty);

 private:
  void putBack();

  QQuickItem& item_;
  const QQuickItem* layout_ = nullptr;  ///< only compared
  QPointer<QObject> properties_;        ///< the attached object, while its properties are set
  std::array<const char*, 2> names_{};
  std::array<QVariant, 2> before_;
};

}  // namespace quorix::qt
