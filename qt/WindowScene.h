#pragma once

#include <QObject>
#include <QPointer>
#include <functional>

#include "platform/hosting/WindowSession.h"

class QWindow;

namespace quorix::qt {

class SafeAreaWatcher;

/// The session of a toolkit's window. A child of that window; main thread.
class QUORIX_EXPORT WindowScene : public QObject, public hosting::WindowSession {
  Q_OBJECT

 public:
  /// A window of a toolkit.
  struct Toolkit {
    std::function<QWindow*()> window;  ///< null while it is not shown
    std::function<hosting::SheetSession&(WindowScene&, const hosting::Responder* opener)> newSheet;
  };

  /// The scene of `window`, made with the first call.
  static WindowScene& of(QObject& window, const Toolkit& toolkit);
  /// Null before that.
  static WindowScene* find(const QObject& window);

  ~WindowScene() override;

 private:
  WindowScene(QObject& window, const Toolkit& toolkit);
  bool isVisible() const override;
  hosting::SheetSession& newSheet(const hosting::Responder* opener) override;
  void focusWindowChanged(QWindow* focused);
  void followSafeArea();

  Toolkit toolkit_;
  QPointer<SafeAreaWatcher> safeArea_;  ///< made with the first sheet
};

}  // namespace quorix::qt
