#pragma once

#include <optional>

#include "platform/foundation/Export.h"
#include "platform/graphics/RGBA.h"
#include "platform/render/Scene.h"
#include "platform/swiftui/Environment.h"
#include "platform/swiftui/View.h"
#include "platform/text/TextEngine.h"

namespace quorix::hosting {

/// What a still picture of a view shows. A plain value; any thread.
struct StillOptions {
  /// Width of the picture in points; with `sheet`, of the window in which the sheet opens.
  double width = 375;
  /// Height in points. The default is the view's ideal height at `width`; for a window, twice its
  /// width.
  std::optional<double> height;
  /// The user's settings and the device pixels for each point.
  swiftui::Environment environment;
  /// Performs the view's first element with an action and shows the sheet that it opens. The view
  /// is at the top of the window.
  bool sheet = false;
  /// Color behind the view. The default is white in the light appearance and black in the dark one.
  std::optional<graphics::RGBA> background;
  /// Insets that the device covers in the window of the sheet.
  layout::SideInsets safeArea = {};

  /// The background, or its default.
  graphics::RGBA ground() const {
    const bool dark = environment.appearance == graphics::Appearance::dark;
    return background.value_or(dark ? graphics::RGBA{0, 0, 0, 255}
                                    : graphics::RGBA{255, 255, 255, 255});
  }
};

/// A view that was laid out once, without a window: what a picture shows and what a screen reader
/// reads. Do not call its actions: their view no longer exists.
struct QUORIX_EXPORT StillScene {
  render::Scene view;
  std::optional<render::Scene> sheet;  ///< as large as the view's display list and above it

  /// View and sheet in one.
  render::Scene whole() const&;
  render::Scene whole() &&;
  /// What assistive technology reads: a sheet hides everything behind it.
  const render::Scene& topmost() const { return sheet ? *sheet : view; }
};

/// Lays out `view`, and with `options.sheet` the sheet that it opens. The view is on screen during
/// the call, so its tasks may start. Main thread.
QUORIX_EXPORT StillScene stillScene(text::TextEngine& engine, const swiftui::View& view,
                                    const StillOptions& options);

}  // namespace quorix::hosting
