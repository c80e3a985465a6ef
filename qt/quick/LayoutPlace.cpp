#include "qt/quick/LayoutPlace.h"

#include <QtQml/qqml.h>
#include <QQuickItem>

namespace quorix::qt {
namespace {

/// The class called `name` among those of `item`, or null.
const QMetaObject* classOf(const QQuickItem* item, const char* name) {
  const QMetaObject* type = item ? item->metaObject() : nullptr;
  while (type && qstrcmp(type->className(), name) != 0) type = type->superClass();
  return type;
}

}  // namespace

void LayoutPlace::follow(bool empty) {
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

/// Keeps values that the host has set meanwhile.
void LayoutPlace::putBack() {
  for (std::size_t i = 0; properties_ && i < names_.size(); ++i) {
    if (properties_->property(names_[i]) == 0.0) properties_->setProperty(names_[i], before_[i]);
  }
  properties_ = nullptr;
}

}  // namespace quorix::qt
