#include "qt/Picture.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

#include "platform/hosting/SheetPresenter.h"
#include "platform/hosting/ViewHost.h"
#include "qt/QtColor.h"
#include "qt/QtTextEngine.h"
#include "qt/ScenePainter.h"

namespace quorix::qt {
namespace {

using hosting::SheetPresenter;
using hosting::ViewHost;

// What a QPainter can address on one axis.
constexpr double largestSide = 32767;

/// A still surface: it asks when it paints, so notices tell it nothing.
struct StillSurface final : ViewHost::Client, SheetPresenter::Client {
  void viewNeedsDisplay() override {}
  void presentationChanged() override {}
  void sheetNeedsDisplay() override {}
  void sheetDidClose() override {}
};

graphics::RGBA backgroundOf(const PictureOptions& options) {
  if (options.background) return *options.background;
  const bool dark = options.environment.appearance == graphics::Appearance::dark;
  return dark ? graphics::RGBA{0, 0, 0, 255} : graphics::RGBA{255, 255, 255, 255};
}

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

QImage paintPicture(const render::Scene& scene, double scale, graphics::RGBA background) {
  const double width = std::ceil(scene.size.width * scale);
  const double height = std::ceil(scene.size.height * scale);
  const bool drawable = width >= 1 && height >= 1 && width <= largestSide && height <= largestSide;
  if (!drawable) return {};
  QImage image(static_cast<int>(width), static_cast<int>(height),
               QImage::Format_ARGB32_Premultiplied);
  if (image.isNull()) return {};
  image.setDevicePixelRatio(scale);
  image.fill(toQColor(background));
  QPainter painter(&image);
  using Ground = ScenePainter::Ground;
  ScenePainter(painter, background.alpha == 0 ? Ground::nothing : Ground::unknown).paint(scene);
  return image;
}

QImage picture(const swiftui::View& view, const PictureOptions& options) {
  StillSurface surface;
  ViewHost host(QtTextEngine::shared(), surface);
  host.setEnvironment(options.environment);
  host.setRoot(view);
  host.setOnScreen(true);
  const layout::Size size = {options.width, heightOf(host, options)};
  const auto sheet = options.sheet ? sheetOver(host, surface, size) : std::nullopt;
  render::Scene scene = host.scene(size);
  if (sheet) scene.append(*sheet, {});
  host.setOnScreen(false);
  return paintPicture(scene, options.environment.scale, backgroundOf(options));
}

}  // namespace quorix::qt
