#include "bench/QmlRows.h"

#include <QQuickItem>
#include <QVariantMap>
#include <cstdlib>

namespace quorix::bench {

QmlRows::QmlRows(const QString& file)
    : component_(&engine_, QUrl(QStringLiteral("qrc:/QuorixBench/%1.qml").arg(file))) {
  if (component_.isReady()) return;
  qCritical("%s", qPrintable(component_.errorString()));
  std::abort();
}

QQuickItem* QmlRows::make(const Shopper& shopper, QQuickItem* parent, double width) {
  auto* row = qobject_cast<QQuickItem*>(component_.createWithInitialProperties({
      {"title", shopper.title},
      {"fee", shopper.fee},
      {"baseFee", shopper.baseFee},
      {"label", shopper.label},
      {"hint", shopper.hint},
      {"ink", ink_},
      {"faded", faded_},
      {"parent", QVariant::fromValue(parent)},
      {"width", width},
  }));
  if (!row) std::abort();
  return row;
}

}  // namespace quorix::bench
