#include "qt/WindowScene.h"

#include <QGuiApplication>
#include <QWindow>
#include <algorithm>
#include <utility>

#include "platform/hosting/ControllerPresentation.h"
#include "platform/uikit/UIApplication.h"
#include "qt/SheetSurface.h"

namespace quorix::qt {
namespace {

using ActivationState = uikit::UIScene::ActivationState;
using Controller = std::shared_ptr<uikit::UIViewController>;

std::vector<WindowScene*>& scenes() {
  static std::vector<WindowScene*> all;
  return all;
}

}  // namespace

WindowScene& WindowScene::of(QObject& window, const Toolkit& toolkit) {
  auto* scene = window.findChild<WindowScene*>(QString(), Qt::FindDirectChildrenOnly);
  return scene ? *scene : *new WindowScene(window, toolkit);
}

WindowScene::WindowScene(QObject& window, const Toolkit& toolkit)
    : QObject(&window), toolkit_(toolkit) {
  window_->setRootViewController(std::make_shared<uikit::UIViewController>());
  window_->setClient(this);
  window_->setHidden(false);
  scene_->addWindow(window_);
  uikit::UIApplication::shared().connect(scene_);
  scenes().push_back(this);
  connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, &WindowScene::focusWindowChanged);
  focusWindowChanged(QGuiApplication::focusWindow());
}

WindowScene::~WindowScene() {
  std::erase(scenes(), this);
  window_->setClient(nullptr);
  window_->resignKey();
  uikit::UIApplication::shared().disconnect(scene_);
}

void WindowScene::used(QObject& surface, const EnvironmentSource& settings) {
  used_ = &surface;
  settings_ = settings;
  window_->makeKey();  // also where no window manager gives the focus to any window
  for (WindowScene* scene : scenes()) scene->updateActivation();
}

// Activation: of several windows in sight, the one that the user works in is the active one.

void WindowScene::focusWindowChanged(QWindow* focused) {
  if (focused && focused == toolkit_.window()) window_->makeKey();
  updateActivation();
}

void WindowScene::updateActivation() {
  const QWindow* window = toolkit_.window();
  const bool visible = window && window->isVisible();
  const auto inSight = window_->isKeyWindow() ? ActivationState::foregroundActive
                                              : ActivationState::foregroundInactive;
  scene_->setActivationState(visible ? inSight : ActivationState::background);
}

// Presented controllers.

void WindowScene::presentedControllersChanged(uikit::UIWindow&, bool animated) {
  animated_ = animated;
  if (std::exchange(showQueued_, true)) return;
  // Whoever presents may be in the middle of something.
  QMetaObject::invokeMethod(
      this, [this] { showPresented(); }, Qt::QueuedConnection);
}

void WindowScene::showPresented() {
  showQueued_ = false;
  const auto presented = window_->presentedControllers();
  std::vector<Shown> before = std::exchange(shown_, {});
  for (const Controller& controller : presented) {
    const auto known = std::find_if(before.begin(), before.end(), [&](const Shown& shown) {
      return shown.controller == controller && shown.object;
    });
    if (known == before.end()) {
      show(controller);
    } else {
      shown_.push_back(std::exchange(*known, {}));
    }
  }
  for (auto gone = before.rbegin(); gone != before.rend(); ++gone) {
    if (gone->object) gone->sheet->retract();
  }
}

void WindowScene::show(const Controller& controller) {
  SheetSurface* sheet = makeSheet(used_ ? *used_ : *this);
  EnvironmentSource settings = settings_;
  if (!animated_) settings.motion = false;
  sheet->setSettings(settings);
  sheet->present(hosting::controllerPresentation(controller));
  shown_.push_back({controller, sheet, &sheet->object()});
}

}  // namespace quorix::qt
