#include "tests/qt/QuickScreen.h"

#include <QQmlComponent>
#include <QQmlEngine>

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

std::function<int()> QuickScreen::listenBelow() {
  auto* engine = new QQmlEngine(window_.get());
  QQmlComponent component(engine);
  component.setData(R"(import QtQuick
      MouseArea {
        property int events
        acceptedButtons: Qt.AllButtons; hoverEnabled: true
        onPressed: ++events
        onPositionChanged: ++events
        onWheel: ++events
      })",
                    {});
  auto* area = qobject_cast<QQuickItem*>(component.create());
  if (!area) qFatal("%s", qUtf8Printable(component.errorString()));
  area->setParent(window_->contentItem());
  area->setParentItem(window_->contentItem());
  area->setSize(window_->size());
  return [area] { return area->property("events").toInt(); };
}

}  // namespace quorix::testing
