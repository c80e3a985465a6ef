#include "bench/QmlPeer.h"

#include <QQuickItem>
#include <cstdlib>

namespace quorix::bench {

QmlPeer::QmlPeer(const QString& file)
    : component_(&engine_, QUrl(QStringLiteral("qrc:/QuorixBench/%1.qml").arg(file))) {
  if (component_.isReady()) return;
  qCritical("%s", qPrintable(component_.errorString()));
  std::abort();
}

QQuickItem* QmlPeer::make(const Subject& subject, QQuickItem* parent, double width) {
  QVariantMap properties = subject.properties();
  properties.insert(QStringLiteral("parent"), QVariant::fromValue(parent));
  properties.insert(QStringLiteral("width"), width);
  auto* item = qobject_cast<QQuickItem*>(component_.createWithInitialProperties(properties));
  if (!item) std::abort();
  return item;
}

}  // namespace quorix::bench
