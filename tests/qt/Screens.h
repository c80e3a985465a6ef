#pragma once

#include <gtest/gtest.h>

#include <QAccessible>
#include <QImage>
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

namespace quorix::testing {

/// A window of either toolkit for a simulated user: finds elements by their accessibility labels
/// and presses them at their position.
class Screen {
 public:
  virtual ~Screen() = default;

  virtual QWindow& window() = 0;
  virtual QImage grab() = 0;
  /// Adds an object below all later ones. It fills the window and takes input of pointers.
  virtual QObject& addBelow() = 0;

  /// Runs the event loop until nothing is left to draw.
  void settle();
  /// How often the window or a part of it was drawn so far.
  int frames() const { return frames_; }

  /// The reachable element with the label `name`, or null.
  QAccessibleInterface* find(const QString& name);
  bool shows(const QString& name) { return find(name) != nullptr; }
  QPoint centerOf(const QString& name);
  void click(const QString& name);
  void clickAt(QPoint point);
  void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {});
  /// Performs an action of assistive technology on an element, such as a press.
  void act(const QString& name, const QString& action);
  /// Turns the wheel. With a phase, moves two fingers on a trackpad.
  void wheel(QPoint at, QPoint pixels, QPoint angle, Qt::ScrollPhase phase = Qt::NoScrollPhase);

  /// Drags the mouse or a finger from one point to the other. The mouse takes `milliseconds` by its
  /// events' own times. A finger's events have the times at which they were sent, so it is as fast
  /// as the machine allows: under load a flick would otherwise be too slow.
  void drag(QPoint from, QPoint to, int milliseconds, bool byTouch);

 protected:
  static constexpr QSize kSize{360, 600};

  Screen();
  /// Call after the window is shown.
  void waitUntilActive();
  void countFrame() { ++frames_; }

 private:
  /// The window's object for assistive technology.
  virtual QObject& accessibleRoot() = 0;

  int frames_ = 0;
};

/// A user action in a row of a table.
using Act = std::function<void(Screen&)>;
struct Way {
  const char* by;
  Act perform;
};

inline Act clicking(const char* name) {
  return [=](Screen& screen) { screen.click(name); };
}
inline Act dragging(QPoint from, QPoint to, int milliseconds, bool byTouch) {
  return [=](Screen& screen) { screen.drag(from, to, milliseconds, byTouch); };
}
inline Act turning(QPoint at, QPoint pixels, QPoint angle, Qt::ScrollPhase phase = {}) {
  return [=](Screen& screen) { screen.wheel(at, pixels, angle, phase); };
}
inline Act pressing(QList<Qt::Key> keys) {
  return [=](Screen& screen) {
    for (const Qt::Key key : keys) screen.key(key);
  };
}

inline Act acting(const char* name, const QString& action) {
  return [=](Screen& screen) { screen.act(name, action); };
}

class QuickScreen : public Screen {
 public:
  QuickScreen();

  QQuickWindow& window() override { return *window_; }
  void closeWindow() { window_.reset(); }
  QImage grab() override { return window_->grabWindow(); }
  QObject& addBelow() override;

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
  QObject& addBelow() override;

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

/// Counts an object's events of some kinds.
struct EventCount : QObject {
  EventCount(QObject& watched, QList<QEvent::Type> counted) : kinds(std::move(counted)) {
    watched.installEventFilter(this);
  }
  bool eventFilter(QObject*, QEvent* event) override {
    return count += kinds.contains(event->type()), false;
  }
  const QList<QEvent::Type> kinds;
  int count = 0;
};

inline const QList kPointer = {QEvent::MouseButtonPress,
                               QEvent::MouseButtonRelease,
                               QEvent::MouseMove,
                               QEvent::HoverMove,
                               QEvent::Wheel,
                               QEvent::TouchBegin,
                               QEvent::ContextMenu};

struct ScreenName {
  template <class Screen>
  static std::string GetName(int) {
    return std::is_same_v<Screen, QuickScreen> ? "Quick" : "Widgets";
  }
};

}  // namespace quorix::testing
