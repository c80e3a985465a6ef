#include "examples/shop/ShopWindow.h"

#include <QQmlContext>
#include <QUrl>
#include <QtQml>

#include "examples/shop/ScoreRow.h"
#include "platform/foundation/FatalError.h"

namespace quorix::examples {

ShopWindow::ShopWindow() {
  qmlRegisterType<ScoreRow>("Quorix.Shop", 1, 0, "ScoreRow");
  qmlRegisterSingletonInstance("Quorix.Shop", 1, 0, "Shop", &shop_);
  engine_.load(QUrl(QStringLiteral("qrc:/shop/qml/Main.qml")));
  if (!engine_.rootObjects().isEmpty()) {
    window_ = qobject_cast<QQuickWindow*>(engine_.rootObjects().constFirst());
  }
  if (window_ == nullptr) foundation::fatalError("the shop's screens can't be read");
}

void ShopWindow::choose(const Choices& choices) {
  window_->setProperty("shopper", choices.shopper);
  window_->setProperty("language", choices.language);
  window_->setProperty("appearance", choices.appearance);
  window_->setProperty("face", choices.face);
}

ScoreRow& ShopWindow::row() const {
  auto* row = window_->findChild<ScoreRow*>();
  if (row == nullptr) foundation::fatalError("the shop's page has no score row");
  return *row;
}

}  // namespace quorix::examples
