#pragma once

#include <QObject>
#include <QPointer>
#include <functional>
#include <memory>
#include <vector>

#include "platform/foundation/Export.h"
#include "platform/uikit/UIScene.h"
#include "platform/uikit/UIWindow.h"
#include "qt/EnvironmentSource.h"

class QWindow;

namespace quorix::qt {

class SheetSurface;

/// A window of the toolkit as the imperative vocabulary sees it: a scene with one window, whose
/// root controller stands for the host's own screen. Controllers that are presented over it are
/// shown as sheets. Belongs to the toolkit's window; main thread.
class QUORIX_EXPORT WindowScene : public QObject, private uikit::UIWindow::Client {
  Q_OBJECT

 public:
  /// How a toolkit answers for one of its windows.
  struct Toolkit {
    std::function<QWindow*()> window;  ///< null while it is not shown
    /// A new one above `opener` and over the window, which it belongs to.
    std::function<SheetSurface*(const QObject& opener)> makeSheet;
  };

  /// The scene of `window`, begun when the first surface in it asks.
  static WindowScene& of(QObject& window, const Toolkit& toolkit);
  ~WindowScene() override;

  /// The user works with `surface`, an item or widget of this window, which has these settings.
  void used(QObject& surface, const EnvironmentSource& settings);
  /// A new sheet above `opener` and over the window, which it belongs to.
  SheetSurface* makeSheet(const QObject& opener) const { return toolkit_.makeSheet(opener); }

 private:
  /// A controller on its sheet.
  struct Shown {
    std::shared_ptr<uikit::UIViewController> controller;
    SheetSurface* sheet;  ///< as long as `object`
    QPointer<QObject> object;
  };

  WindowScene(QObject& window, const Toolkit& toolkit);
  void presentedControllersChanged(uikit::UIWindow& window, bool animated) override;
  void showPresented();
  void show(const std::shared_ptr<uikit::UIViewController>& controller);
  void focusWindowChanged(QWindow* focused);
  void updateActivation();

  Toolkit toolkit_;
  std::shared_ptr<uikit::UIWindow> window_ = std::make_shared<uikit::UIWindow>();
  std::shared_ptr<uikit::UIWindowScene> scene_ = std::make_shared<uikit::UIWindowScene>();
  QPointer<QObject> used_;  ///< the surface that the user worked with last
  EnvironmentSource settings_;
  std::vector<Shown> shown_;  ///< the lowest first
  bool animated_ = true;
  bool showQueued_ = false;
};

}  // namespace quorix::qt
