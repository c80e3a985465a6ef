#pragma once

#include <QAccessible>
#include <QImage>
#include <QString>
#include <QWindow>
#include <functional>

namespace quorix::testing {

/// A window of either toolkit for a simulated user: finds elements by their accessibility labels
/// and presses them at their position.
class Screen {
 public:
  virtual ~Screen() = default;

  virtual QWindow& window() = 0;
  virtual QImage grab() = 0;
  /// Adds an object below all later ones, and counts the pointer events that reach it.
  virtual std::function<int()> listenBelow() = 0;

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

  /// Drags the mouse or a finger from one point to the other within `milliseconds`. A finger is
  /// always fast, because the test library numbers its events instead of timing them.
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

}  // namespace quorix::testing
