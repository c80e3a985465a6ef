#include "qt/StillScene.h"

#include <algorithm>

#include "platform/hosting/SheetPresenter.h"
#include "platform/hosting/ViewHost.h"
#include "qt/QtTextEngine.h"

namespace quorix::qt {
namespace {

using hosting::SheetPresenter;
using hosting::ViewHost;

/// A still surface: it asks when it paints, so most notices tell it nothing.
struct StillSurface final : ViewHost::Client, SheetPresenter::Client {
  bool sheetIsOutdated = false;
  void viewNeedsDisplay() override {}
  void presentationChanged() override { sheetIsOutdated = true; }
  void sheetNeedsDisplay() override {}
  void sheetDidClose() override {}
};

/// Performs the first element that acts. False when there is none.
bool activateFirst(ViewHost& host, layout::Size size) {
  const auto& elements = host.scene(size).accessibility;
  const auto acting =
      std::ranges::find_if(elements, [](const auto& element) { return bool(element.action); });
  return acting != elements.end() && host.activate(static_cast<int>(acting - elements.begin()));
}

/// The sheet that the view opens, at rest over `window`; nothing when it opens none.
std::optional<render::Scene> sheetOver(ViewHost& host, StillSurface& surface, layout::Size size,
                                       layout::Size window) {
  if (!activateFirst(host, size)) return std::nullopt;
  SheetPresenter sheet(QtTextEngine::shared(), surface);
  sheet.setMotion(false);
  sheet.setEnvironment(host.environment());
  sheet.setWindow(window, {});
  // A sheet that measures its content asks for another height, and is then presented anew.
  constexpr int mostTurns = 8;
  for (int turn = 0; turn < mostTurns; ++turn) {
    host.settle();
    surface.sheetIsOutdated = false;
    const swiftui::Presentation* presentation = host.presentation();
    if (presentation == nullptr) return std::nullopt;
    sheet.present(*presentation);
    sheet.settle();
    host.settle();
    if (!surface.sheetIsOutdated) break;
  }
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
  const auto fitting = [&] { return host.sizeThatFits({options.width, std::nullopt}).height; };
  StillScene still;
  if (options.sheet) {
    const layout::Size window = {options.width, options.height.value_or(2 * options.width)};
    const layout::Size size = {options.width, fitting()};
    still.sheet = sheetOver(host, surface, size, window);
    still.view = host.scene(size);
    still.view.size = window;
  } else {
    still.view = host.scene({options.width, options.height ? *options.height : fitting()});
  }
  host.setOnScreen(false);
  return still;
}

}  // namespace quorix::qt
