#pragma once

#include <QPointer>
#include <QQuickItem>
#include <QVariant>
#include <array>

#include "qt/quick/AttachedObject.h"

namespace quorix::qt {

/// Keeps an empty item from taking room in a layout of Qt Quick Layouts. Such a layout reads an
/// implicit size of 0 as unset, and the item keeps its former size. While the item is empty, its
/// attached `Layout` properties are set to 0; then the host's values are restored. The spacing
/// stays. Main thread.
class LayoutPlace {
 public:
  explicit LayoutPlace(QQuickItem& item) : item_(item) {}

  /// The item became empty, was filled, or has another parent.
  void follow(bool empty) {
    const QQuickItem* parent = item_.parentItem();
    if (empty && properties_ && parent == layout_) return;
    putBack();
    if (!empty || !parent || !parent->inherits("QQuickLayout")) return;
    properties_ = attachedObject(item_, "QQuickLayout*");
    layout_ = parent;
    // Not both maxima: a layout skips such an item, and the other items of a grid move up.
    names_ = parent->inherits("QQuickRowLayout") ? std::array{"maximumWidth", "preferredHeight"}
                                                 : std::array{"preferredWidth", "maximumHeight"};
    for (std::size_t i = 0; properties_ && i < names_.size(); ++i) {
      before_[i] = properties_->property(names_[i]);
      properties_->setProperty(names_[i], 0.0);
    }
  }

 private:
  /// Keeps values that the host has set meanwhile.
  void putBack() {
    for (std::size_t i = 0; properties_ && i < names_.size(); ++i) {
      if (properties_->property(names_[i]) == 0.0) properties_->setProperty(names_[i], before_[i]);
    }
    properties_ = nullptr;
  }

  QQuickItem& item_;
  const QQuickItem* layout_ = nullptr;  ///< only compared
  QPointer<QObject> properties_;        ///< the attached object, while its properties are set
  std::array<const char*, 2> names_{};
  std::array<QVariant, 2> before_;
};

}  // namespace quorix::qt
