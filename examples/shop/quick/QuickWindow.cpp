#include "examples/shop/quick/QuickWindow.h"

#include <QUrl>
#include <QtQml>

#include "examples/shop/Shop.h"
#include "examples/shop/quick/UIInfoBox.h"
#include "platform/foundation/Error.h"

namespace quorix::examples {

QuickWindow::QuickWindow(Shop& shop) {
  qmlRegisterType<UIInfoBox>("Quorix.Shop", 1, 0, "UIInfoBox");
  qmlRegisterSingletonInstance("Quorix.Shop", 1, 0, "Shop", &shop);
  engine_.load(QUrl(QStringLiteral("qrc:/shop/qml/Main.qml")));
  if (!engine_.rootObjects().isEmpty()) {
    window_ = qobject_cast<QQuickWindow*>(engine_.rootObjects().constFirst());
  }
  if (window_ == nullptr) foundation::fatalError("the shop's screens can't be read");
}

}  // namespace quorix::examples
