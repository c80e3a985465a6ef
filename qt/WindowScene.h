#pragma once

#include <QObject>
#include <QPointer>
#include <functional>

#include "platform/hosting/WindowSession.h"

class QWindow;

namespace quorix::qt {

class SafeAreaWatcher;

/// The session of a toolkit's window, which it belongs to. Main thread.
class QUORIX_EXPORT WindowScene : public QObject, public hosting::WindowSession {
  Q_OBJECT

 public:
  /// How a toolkit answers for one of its windows.
  struct Toolkit {
    std::function<QWindow*()> window;  ///< null while it is not shown
    std::function<hosting::SheetSession&(WindowScene&, const hosting::Responder* opener)> newSheet;
  };

  /// The scene of `window`, begun when the first surface in it asks.
  static WindowScene& of(QObject& window, const Toolkit& toolkit);
  /// Null when none has begun.
  static WindowScene* find(const QObject& window);

  ~WindowScene() override;

 private:
  WindowScene(QObject& window, const Toolkit& toolkit);
  bool isVisible() const override;
  hosting::SheetSession& newSheet(const hosting::Responder* opener) override;
  void focusWindowChanged(QWindow* focused);
  void followSafeArea();

  Toolkit toolkit_;
  QPointer<SafeAreaWatcher> safeArea_;  ///< since the first sheet
};

}  // namespace quorix::qt
