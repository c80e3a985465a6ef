#include "qt/StillScene.h"

#include <algorithm>
#include <functional>

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
  void sheetPresentationChanged() override { sheetIsOutdated = true; }
  void sheetDidClose() override {}
};

/// Performs the first element that acts. False when there is none.
bool activateFirst(ViewHost& host, layout::Size size) {
  const auto& elements = host.scene(size).accessibility;
  const auto acting =
      std::ranges::find_if(elements, [](const auto& element) { return bool(element.action); });
  return acting != elements.end() && host.activate(static_cast<int>(acting - elements.begin()));
}

/// A view, or the content of a sheet, that may present a sheet.
struct Presenting {
  std::function<void()> settle;
  std::function<const swiftui::Presentation*()> presentation;
};

/// The sheet that `below` presents, at rest over `window`, and above it the one that its content
/// presents, and so on; nothing when there is none.
std::optional<render::Scene> sheetOver(const Presenting& below, StillSurface& surface,
                                       const swiftui::Environment& environment,
                                       layout::Size window) {
  SheetPresenter sheet(QtTextEngine::shared(), surface);
  sheet.setMotion(false);
  sheet.setEnvironment(environment);
  sheet.setWindow(window, {});
  // A sheet that measures its content asks for another height, and is then presented anew.
  constexpr int mostTurns = 8;
  for (int turn = 0; turn < mostTurns; ++turn) {
    below.settle();
    surface.sheetIsOutdated = false;
    const swiftui::Presentation* presentation = below.presentation();
    if (presentation == nullptr) return std::nullopt;
    sheet.present(*presentation);
    sheet.settle();
    below.settle();
    if (!surface.sheetIsOutdated) break;
  }
  const Presenting content{[&] { sheet.settle(); }, [&] { return sheet.presentation(); }};
  const auto above = sheetOver(content, surface, environment, window);
  render::Scene scene = sheet.scene();
  if (above) scene.append(*above, {});
  return scene;
}

/// The sheets that the first element that acts opens.
std::optional<render::Scene> sheetOf(ViewHost& host, StillSurface& surface, layout::Size size,
                                     layout::Size window) {
  if (!activateFirst(host, size)) return std::nullopt;
  const Presenting view{[&] { host.settle(); }, [&] { return host.presentation(); }};
  return sheetOver(view, surface, host.environment(), window);
}

}  // namespace

render::Scene StillScene::whole() const& { return StillScene(*this).whole(); }

render::Scene StillScene::whole() && {
  if (sheet) view.append(*std::move(sheet), {});
  return std::move(view);
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
    still.sheet = sheetOf(host, surface, size, window);
    still.view = host.takeScene(size);
    still.view.size = window;
  } else {
    still.view = host.takeScene({options.width, options.height ? *options.height : fitting()});
  }
  host.setOnScreen(false);
  return still;
}

}  // namespace quorix::qt
