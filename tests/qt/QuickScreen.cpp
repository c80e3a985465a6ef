#include "tests/qt/Screens.h"

#include <QQmlComponent>

namespace quorix::testing {

QuickScreen::QuickScreen() : window_(std::make_unique<QQuickWindow>()) {
  QObject::connect(window_.get(), &QQuickWindow::frameSwapped, window_.get(),
                   [this] { countFrame(); });
  window_->resize(kSize);
  window_->show();
  waitUntilActive();
}

qt::ViewItem* QuickScreen::add(swiftui::View view, QRectF place) {
  auto* item = new qt::ViewItem(std::move(view), window_->contentItem());
  item->setMotion(false);
  item->setPosition(place.topLeft());
  item->setWidth(place.width());
  item->setHeight(place.height() > 0 ? place.height() : item->implicitHeight());
  settle();
  return item;
}

void QuickScreen::adopt(qt::ViewItem* item) {
  item->setParentItem(window_->contentItem());
  item->setParent(window_->contentItem());
}

QQuickItem* QuickScreen::addFocusable() {
  auto* item = new QQuickItem(window_->contentItem());
  item->setSize({10, 10});
  item->setActiveFocusOnTab(true);
  item->forceActiveFocus();
  return item;
}

QQuickItem* QuickScreen::addQml(const QByteArray& source) {
  qmlRegisterType<qt::ViewItem>("Shop", 1, 0, "Row");
  QQmlComponent component(&engine_);
  component.setData("import QtQuick\nimport QtQuick.Layouts\nimport Shop\n" + source, {});
  auto* item = qobject_cast<QQuickItem*>(component.create());
  if (!item) qFatal("%s", qUtf8Printable(component.errorString()));
  item->setParent(window_->contentItem());
  item->setParentItem(window_->contentItem());
  return item;
}

std::function<int()> QuickScreen::listenBelow() {
  QQuickItem* area = addQml(R"(
      MouseArea {
        property int events
        acceptedButtons: Qt.AllButtons; hoverEnabled: true
        onPressed: ++events
        onPositionChanged: ++events
        onWheel: ++events
      })");
  area->setSize(window_->size());
  return [area] { return area->property("events").toInt(); };
}

}  // namespace quorix::testing
