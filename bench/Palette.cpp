#include "bench/Palette.h"

#include <cstdlib>

#include "QuorixWidgets/localization/Assets.h"

namespace quorix::bench {
namespace {

QColor resolved(const swiftui::Color& color) {
  const auto rgba = color.resolve(graphics::Appearance::light);
  if (!rgba) std::abort();
  return QColor(rgba->red, rgba->green, rgba->blue, rgba->alpha);
}

}  // namespace

QColor inkColor() { return resolved(Color::defaultFontColor()); }
QColor fadedColor() { return resolved(ColorResource::grey2()); }
QColor groundColor() { return resolved(Color::widgetBackground()); }

}  // namespace quorix::bench
