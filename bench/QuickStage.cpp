#include "bench/QuickStage.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QQuickItem>
#include <QQuickRenderTarget>
#include <cstdlib>

namespace quorix::bench {

QuickStage::QuickStage(QSize size) : image_(size, QImage::Format_ARGB32_Premultiplied) {
  window_.setColor(Qt::white);
  window_.setGeometry(QRect(QPoint(), size));
  window_.contentItem()->setSize(size);
  window_.setRenderTarget(QQuickRenderTarget::fromPaintDevice(&image_));
  window_.show();
}

void QuickStage::frame() {
  control_.polishItems();
  control_.beginFrame();
  control_.sync();
  control_.render();
  control_.endFrame();
}

QQuickItem* create(QQmlComponent& component, const QVariantMap& properties) {
  auto* item = qobject_cast<QQuickItem*>(component.createWithInitialProperties(properties));
  if (item) return item;
  qCritical("%s", qPrintable(component.errorString()));
  std::abort();
}

QmlPeer::QmlPeer(const QString& file)
    : component_(&engine_, QUrl(QStringLiteral("qrc:/QuorixBench/%1.qml").arg(file))) {}

QQuickItem* QmlPeer::make(QVariantMap properties, QQuickItem* parent, double width) {
  properties.insert(QStringLiteral("parent"), QVariant::fromValue(parent));
  properties.insert(QStringLiteral("width"), width);
  return create(component_, properties);
}

void sendTap(QQuickWindow& window, QPointF at) {
  for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
    QMouseEvent event(type, at, window.mapToGlobal(at), Qt::LeftButton,
                      type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(&window, &event);
  }
}

void sendEscape(QQuickWindow& window) {
  for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
    QKeyEvent event(type, Qt::Key_Escape, Qt::NoModifier);
    QCoreApplication::sendEvent(&window, &event);
  }
}

}  // namespace quorix::bench
