#pragma once

#include <gtest/gtest.h>

#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>
#include <QVariantList>
#include <QWidget>
#include <type_traits>

#include "qt/quick/ViewItem.h"
#include "qt/widgets/ViewWidget.h"
#include "tests/qt/FeeRow.h"
#include "tests/qt/Screen.h"

namespace quorix::testing {

class QuickScreen : public Screen {
 public:
  QuickScreen();

  QQuickWindow& window() override { return *window_; }
  void closeWindow() { window_.reset(); }
  QImage grab() override { return window_->grabWindow(); }
  std::function<int()> listenBelow() override;

  /// Adds a view at `place`, without motion. Without a height in `place`, it has its ideal height.
  qt::ViewItem* add(swiftui::View view, QRectF place);
  /// Moves `item` from another screen to this one.
  void adopt(qt::ViewItem* item);
  /// Adds an object of the host that can have the focus.
  QQuickItem* addFocusable();
  /// Adds the QML in `source`, where view items are called "Row".
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

class WidgetScreen : public QObject, public Screen {
 public:
  WidgetScreen();
  ~WidgetScreen() override;

  QWindow& window() override { return *host_->windowHandle(); }
  /// The top-level widget.
  QWidget& host() { return *host_; }
  void closeWindow() { host_.reset(); }
  QImage grab() override { return host_->grab().toImage(); }
  std::function<int()> listenBelow() override;

  /// Adds a view at `place`, without motion. Without a height in `place`, it has its ideal height.
  qt::ViewWidget* add(swiftui::View view, QRectF place);
  /// Moves `widget` from another screen to this one.
  void adopt(qt::ViewWidget* widget);
  /// Adds an object of the host that can have the focus.
  QWidget* addFocusable();
  static void focus(QWidget* widget) { widget->setFocus(); }
  static bool hasFocus(const QWidget* widget) { return widget->hasFocus(); }
  static QRect placeOf(const QWidget* widget) { return widget->geometry(); }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QObject& accessibleRoot() override { return *host_; }

  std::unique_ptr<QWidget> host_;
  QWidget* below_ = nullptr;
  std::ptrdiff_t eventsBelow_ = 0;
};

/// All toolkits, for common behaviour.
using Screens = ::testing::Types<QuickScreen, WidgetScreen>;

/// Declares a suite whose tests run in each toolkit:
///
///     SCREENS_TEST_SUITE(Sheet);
///     TYPED_TEST(Sheet, Opens) { TypeParam screen; }
#define SCREENS_TEST_SUITE(suite)    \
  template <class>                   \
  struct suite : ::testing::Test {}; \
  TYPED_TEST_SUITE(suite, ::quorix::testing::Screens, ::quorix::testing::ScreenName)

/// The place of a test's view, at its ideal height.
constexpr QRectF kPlace(20, 40, 300, 0);

/// Records a view's signals in order.
struct Told {
  template <class View>
  explicit Told(View& view) {
    QObject::connect(&view, &View::activated, [said = said] { *said << "activated"; });
    QObject::connect(&view, &View::sheetOpened, [said = said] { *said << "opened"; });
    QObject::connect(&view, &View::sheetClosed, [said = said](auto why) { *said << int(why); });
  }
  const QVariantList& operator*() const { return *said; }
  std::shared_ptr<QVariantList> said = std::make_shared<QVariantList>();
};

/// Counts an object's events of one kind.
struct EventCount : QObject {
  EventCount(QObject& watched, QEvent::Type counted) : type(counted) {
    watched.installEventFilter(this);
  }
  bool eventFilter(QObject*, QEvent* event) override {
    return count += event->type() == type, false;
  }
  const QEvent::Type type;
  int count = 0;
};

struct ScreenName {
  template <class Screen>
  static std::string GetName(int) {
    return std::is_same_v<Screen, QuickScreen> ? "Quick" : "Widgets";
  }
};

}  // namespace quorix::testing
