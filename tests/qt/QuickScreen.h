#pragma once

#include <QAccessible>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QString>
#include <QStringList>
#include <memory>

#include "platform/swiftui/View.h"
#include "qt/quick/ViewItem.h"

namespace quorix::testing {

/// A window as a user meets it: things are found by what assistive technology says of them, and
/// pointed at where they are.
class QuickScreen {
 public:
  QuickScreen();
  ~QuickScreen();

  QQuickWindow& window() { return *window_; }
  void closeWindow() { window_.reset(); }

  /// A view at `place`, without motion; its height is what it wants where `place` has none.
  qt::ViewItem* add(swiftui::View view, QRectF place);
  /// Something of the host's that can have the focus.
  QQuickItem* addFocusable();
  /// What `source` says in QML, in which the view items are called "Shop.Row".
  QQuickItem* addQml(const QByteArray& source);

  /// Takes turns until nothing is left to draw.
  void settle();

  /// What is called `name` and can be reached, or null.
  QAccessibleInterface* find(const QString& name);
  bool shows(const QString& name) { return find(name) != nullptr; }
  QPoint centreOf(const QString& name);
  void click(const QString& name);
  void clickAt(QPoint point);
  void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {});

  /// Moves a pressed mouse or finger from one point to the other within `milliseconds`. A finger is
  /// always fast: the test library numbers its events instead of timing them.
  void drag(QPoint from, QPoint to, int milliseconds, bool byTouch);

  QImage grab();

 private:
  QQmlEngine engine_;
  std::unique_ptr<QQuickWindow> window_;
};

}  // namespace quorix::testing
