#pragma once

#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <memory>

#include "platform/swiftui/View.h"
#include "qt/quick/ViewItem.h"
#include "tests/qt/Screen.h"

namespace quorix::testing {

class QuickScreen : public Screen {
 public:
  QuickScreen();

  QQuickWindow& window() override { return *window_; }
  void closeWindow() { window_.reset(); }
  QImage grab() override { return window_->grabWindow(); }
  std::function<int()> listenBelow() override;

  /// A view at `place`, without motion; its height is what it wants where `place` has none.
  qt::ViewItem* add(swiftui::View view, QRectF place);
  /// Takes `item` over from another screen.
  void adopt(qt::ViewItem* item);
  /// Something of the host's that can have the focus.
  QQuickItem* addFocusable();
  /// What `source` says in QML, in which the view items are called "Row".
  QQuickItem* addQml(const QByteArray& source);
  static void focus(QQuickItem* item) { item->forceActiveFocus(); }
  static bool hasFocus(const QQuickItem* item) { return item->hasActiveFocus(); }
  static QRect placeOf(const QQuickItem* item) { return {at(item), item->size().toSize()}; }

 private:
  static QPoint at(const QQuickItem* item) { return item->mapToScene({}).toPoint(); }
  QObject& accessibleRoot() override { return *window_; }

  QQmlEngine engine_;
  std::unique_ptr<QQuickWindow> window_;
};

}  // namespace quorix::testing
