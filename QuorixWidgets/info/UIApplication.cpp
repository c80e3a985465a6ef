#include "QuorixWidgets/info/UIApplication.h"

#include <algorithm>
#include <vector>

#include "platform/uikit/UIWindowScene.h"

namespace quorix {
namespace {

using uikit::UIScene;
using uikit::UIWindow;
using uikit::UIWindowScene;

std::vector<std::shared_ptr<UIWindowScene>> windowScenes() {
  std::vector<std::shared_ptr<UIWindowScene>> found;
  for (const auto& scene : uikit::UIApplication::shared().connectedScenes()) {
    if (auto withWindows = std::dynamic_pointer_cast<UIWindowScene>(scene)) {
      found.push_back(std::move(withWindows));
    }
  }
  return found;
}

template <class Condition>
std::shared_ptr<UIWindow> firstWindow(const UIWindowScene& scene, Condition condition) {
  const auto& windows = scene.windows();
  const auto found = std::find_if(windows.begin(), windows.end(), condition);
  return found == windows.end() ? nullptr : *found;
}

bool isKey(const std::shared_ptr<UIWindow>& window) { return window->isKeyWindow(); }

bool isInPlainSight(const std::shared_ptr<UIWindow>& window) {
  return !window->isHidden() && window->windowLevel() == UIWindow::normalLevel;
}

}  // namespace

std::shared_ptr<UIWindow> UIApplication::getKeyWindow() {
  const auto scenes = windowScenes();
  const auto active = std::find_if(scenes.begin(), scenes.end(), [](const auto& scene) {
    return scene->activationState() == UIScene::ActivationState::foregroundActive;
  });
  if (active != scenes.end()) {
    if (auto key = firstWindow(**active, isKey)) return key;
    if (auto visible = firstWindow(**active, isInPlainSight)) return visible;
    return firstWindow(**active, [](const auto&) { return true; });
  }
  for (const auto& scene : scenes) {
    if (auto key = firstWindow(*scene, isKey)) return key;
  }
  return nullptr;
}

}  // namespace quorix
