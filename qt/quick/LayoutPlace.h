#pragma once

#include <QtQml/qqml.h>
#include <QPointer>
#include <QQuickItem>
#include <QVariant>
#include <array>

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
    const QMetaObject* layout = empty ? classOf(parent, "QQuickLayout") : nullptr;
    if (!layout) return;
    QObject* attached =
        qmlAttachedPropertiesObject(&item_, qmlAttachedPropertiesFunction(nullptr, layout), true);
    if (!attached) return;
    layout_ = parent;
    properties_ = attached;
    // Not both maxima: a layout skips such an item, and the other items of a grid move up.
    names_ = classOf(parent, "QQuickRowLayout") ? std::array{"maximumWidth", "preferredHeight"}
                                                : std::array{"preferredWidth", "maximumHeight"};
    for (std::size_t i = 0; i < names_.size(); ++i) {
      before_[i] = attached->property(names_[i]);
      attached->setProperty(names_[i], 0.0);
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

  /// The class called `name` among those of `item`, or null.
  static const QMetaObject* classOf(const QQuickItem* item, const char* name) {
    const QMetaObject* type = item ? item->metaObject() : nullptr;
    while (type && qstrcmp(type->className(), name) != 0) type = type->superClass();
    return type;
  }

  QQuickItem& item_;
  const QQuickItem* layout_ = nullptr;  ///< only compared
  QPointer<QObject> properties_;        ///< the attached object, while its properties are set
  std::array<const char*, 2> names_{};
  std::array<QVariant, 2> before_;
};

}  // namespace quorix::qt
