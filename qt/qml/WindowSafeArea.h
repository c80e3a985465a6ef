#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>

namespace quorix::qml {

/// What the device covers at the edges of a window, in points, as `qt::setSafeArea` says it. A
/// window for which QML names an edge has its four edges from here (0 unless named), and none from
/// Qt. Main thread.
///
///     Window { WindowSafeArea.top: 47; WindowSafeArea.bottom: 34 }
class WindowSafeArea : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Attach it to a window")
  QML_ATTACHED(quorix::qml::WindowSafeArea)

  Q_PROPERTY(int top MEMBER top_ NOTIFY changed FINAL)
  Q_PROPERTY(int left MEMBER left_ NOTIFY changed FINAL)
  Q_PROPERTY(int bottom MEMBER bottom_ NOTIFY changed FINAL)
  Q_PROPERTY(int right MEMBER right_ NOTIFY changed FINAL)

 public:
  explicit WindowSafeArea(QObject* window);

  static WindowSafeArea* qmlAttachedProperties(QObject* window) {
    return new WindowSafeArea(window);
  }

 signals:
  void changed();

 private:
  int top_ = 0;
  int left_ = 0;
  int bottom_ = 0;
  int right_ = 0;
};

}  // namespace quorix::qml
