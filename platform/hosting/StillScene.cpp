#include "platform/hosting/StillScene.h"

#include <algorithm>
#include <utility>

#include "platform/hosting/ViewWindow.h"

namespace quorix::hosting {
namespace {

/// Performs the first element that acts, and returns the sheets that it opens.
std::optional<render::Scene> sheetsOf(ViewWindow& window) {
  const auto& elements = window.view().elements();
  const auto acting =
      std::ranges::find_if(elements, [](const auto& element) { return bool(element.action); });
  if (acting == elements.end()) return std::nullopt;
  // `ViewSession::activate` would make this the window that the user works in.
  window.view().host().activate(static_cast<int>(acting - elements.begin()));
  window.settle();
  std::optional<render::Scene> all;
  for (SheetSession* sheet : window.sheets()) {
    if (!all) {
      all = sheet->presenter().scene();
    } else {
      all->append(sheet->presenter().scene(), {});
    }
  }
  return all;
}

}  // namespace

render::Scene StillScene::whole() const& { return StillScene(*this).whole(); }

render::Scene StillScene::whole() && {
  if (sheet) view.append(*std::move(sheet), {});
  return std::move(view);
}

StillScene stillScene(text::TextEngine& engine, const swiftui::View& view,
                      const StillOptions& options) {
  StillScene still;
  if (!options.sheet) {
    ViewHost::Client surface;
    ViewHost host(engine, surface);
    host.setEnvironment(options.environment);
    host.setRoot(view);
    host.setOnScreen(true);
    const auto ideal = [&] { return host.sizeThatFits({options.width, std::nullopt}).height; };
    still.view = host.takeScene({options.width, options.height ? *options.height : ideal()});
    return still;
  }
  const layout::Size size = {options.width, options.height.value_or(2 * options.width)};
  ViewWindow window(engine, {options.environment, false}, view, size);
  window.setSafeArea(options.safeArea);
  ViewHost& host = window.view().host();
  const layout::Size ideal = {options.width,
                              host.sizeThatFits({options.width, std::nullopt}).height};
  window.resize(ideal, size);
  still.sheet = sheetsOf(window);
  still.view = host.takeScene(ideal);
  still.view.size = size;
  return still;
}

}  // namespace quorix::hosting
