#include "qt/StillScene.h"

#include <algorithm>

#include "platform/hosting/SheetPresenter.h"
#include "platform/hosting/ViewHost.h"
#include "qt/QtTextEngine.h"

namespace quorix::qt {
namespace {

using hosting::SheetPresenter;
using hosting::ViewHost;

/// A still surface: it asks when it paints, so notices tell it nothing.
struct StillSurface final : ViewHost::Client, SheetPresenter::Client {
  void viewNeedsDisplay() override {}
  void presentationChanged() override {}
  void sheetNeedsDisplay() override {}
  void sheetDidClose() override {}
};

double heightOf(ViewHost& host, const PictureOptions& options) {
  if (options.height) return *options.height;
  if (options.sheet) return 2 * options.width;
  return host.sizeThatFits({options.width, std::nullopt}).height;
}

/// Performs the first element that acts. False when there is none.
bool activateFirst(ViewHost& host, layout::Size size) {
  const auto& elements = host.scene(size).accessibility;
  const auto acting =
      std::ranges::find_if(elements, [](const auto& element) { return bool(element.action); });
  return acting != elements.end() && host.activate(static_cast<int>(acting - elements.begin()));
}

/// The sheet that the view opens, at rest over a window of `size`; nothing when it opens none.
std::optional<render::Scene> sheetOver(ViewHost& host, StillSurface& surface, layout::Size size) {
  if (!activateFirst(host, size)) return std::nullopt;
  host.settle();
  const swiftui::Presentation* presentation = host.presentation();
  if (presentation == nullptr) return std::nullopt;
  SheetPresenter sheet(QtTextEngine::shared(), surface);
  sheet.setMotion(false);
  sheet.setEnvironment(host.environment());
  sheet.setWindow(size, {});
  sheet.present(*presentation);
  sheet.settle();
  return sheet.scene();
}

}  // namespace

render::Scene StillScene::whole() const {
  render::Scene scene = view;
  if (sheet) scene.append(*sheet, {});
  return scene;
}

StillScene stillScene(const swiftui::View& view, const PictureOptions& options) {
  StillSurface surface;
  ViewHost host(QtTextEngine::shared(), surface);
  host.setEnvironment(options.environment);
  host.setRoot(view);
  host.setOnScreen(true);
  const layout::Size size = {options.width, heightOf(host, options)};
  StillScene still;
  if (options.sheet) still.sheet = sheetOver(host, surface, size);
  still.view = host.scene(size);
  host.setOnScreen(false);
  return still;
}

}  // namespace quorix::qt
