#pragma once

#include <QAccessible>
#include <QImage>
#include <QString>
#include <QWindow>
#include <functional>

namespace quorix::testing {

/// A window of either toolkit as its user meets it: elements are found by their accessibility
/// labels and pressed where they are.
class Screen {
 public:
  virtual ~Screen() = default;

  virtual QWindow& window() = 0;
  virtual QImage grab() = 0;
  /// Puts something under all that comes later, and counts the pointer's events that reach it.
  virtual std::function<int()> listenBelow() = 0;

  /// Takes turns until nothing is left to draw.
  void settle();
  /// How often the window, or something in it, was drawn so far.
  int frames() const { return frames_; }

  /// What is called `name` and can be reached, or null.
  QAccessibleInterface* find(const QString& name);
  bool shows(const QString& name) { return find(name) != nullptr; }
  QPoint centerOf(const QString& name);
  void click(const QString& name);
  void clickAt(QPoint point);
  void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {});
  /// Does what assistive technology can do with an element, such as to press it.
  void act(const QString& name, const QString& action);
  /// Turns the wheel or, with a phase, moves two fingers on a trackpad.
  void wheel(QPoint at, QPoint pixels, QPoint angle, Qt::ScrollPhase phase = Qt::NoScrollPhase);

  /// Moves a pressed mouse or finger from one point to the other within `milliseconds`. A finger is
  /// always fast: the test library numbers its events instead of timing them.
  void drag(QPoint from, QPoint to, int milliseconds, bool byTouch);

 protected:
  static constexpr QSize kSize{360, 600};

  Screen();
  /// Once the window is shown.
  void waitUntilActive();
  void countFrame() { ++frames_; }

 private:
  /// What assistive technology knows the window as.
  virtual QObject& accessibleRoot() = 0;

  int frames_ = 0;
};

/// What a user does, as a row of a table.
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
