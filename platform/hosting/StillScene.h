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
  /// Of the picture, in points; with `sheet`, of the window that the sheet opens in.
  double width = 375;
  /// In points. Without it the picture is as high as the view's ideal height at `width`, and a
  /// window twice as high as it is wide.
  std::optional<double> height;
  /// The user's settings and the device pixels for each point.
  swiftui::Environment environment;
  /// Opens the sheet behind the view's first element that acts, and shows it risen over the window,
  /// at whose top the view stands.
  bool sheet = false;
  /// Behind the view. Without it white in the light appearance and black in the dark one.
  std::optional<graphics::RGBA> background;
  /// What the device covers at the edges of the window that a sheet opens in.
  layout::SideInsets safeArea = {};
};

/// A view laid out once, without a window, for a picture or for what a screen reader says. Do not
/// call its actions: their view is gone.
struct QUORIX_EXPORT StillScene {
  render::Scene view;
  std::optional<render::Scene> sheet;  ///< as large as the view's scene, and on top of it

  /// View and sheet in one.
  render::Scene whole() const&;
  render::Scene whole() &&;
  /// What assistive technology reads: only the sheet if there is one.
  const render::Scene& topmost() const { return sheet ? *sheet : view; }
};

/// Lays out `view`, with `options.sheet` also the sheet that it opens. The view comes on screen for
/// the length of the call, so its tasks may start. Main thread.
QUORIX_EXPORT StillScene stillScene(text::TextEngine& engine, const swiftui::View& view,
                                    const StillOptions& options);

}  // namespace quorix::hosting
