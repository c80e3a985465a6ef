#pragma once

#include <QtQml/qqml.h>
#include <QMetaType>
#include <QQuickItem>

namespace quorix::qt {

/// The object that QML attaches to `item` for `type`, such as "QQuickLayout*". Only QML knows these
/// types: null before it has loaded their module.
inline QObject* attachedObject(QQuickItem& item, const char* type) {
  const QMetaObject* known = QMetaType::fromName(type).metaObject();
  const auto attach = known ? qmlAttachedPropertiesFunction(nullptr, known) : nullptr;
  return attach ? qmlAttachedPropertiesObject(&item, attach, true) : nullptr;
}

}  // namespace quorix::qt
