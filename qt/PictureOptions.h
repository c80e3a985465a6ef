#pragma once

#include <optional>

#include "platform/graphics/RGBA.h"
#include "platform/swiftui/Environment.h"

namespace quorix::qt {

/// What a picture of a view is to look like. A plain value; any thread.
struct PictureOptions {
  /// Of the picture, in points; with `sheet`, of the window that the sheet opens in.
  double width = 375;
  /// In points. Without it the picture is as high as the view wishes to be, and a window twice as
  /// high as it is wide.
  std::optional<double> height;
  /// The user's settings and the device pixels for each point.
  swiftui::Environment environment;
  /// Opens the sheet behind the view's first element that acts, and draws it risen over the window,
  /// at whose top the view stands.
  bool sheet = false;
  /// Behind the view. Without it white in the light appearance and black in the dark one.
  std::optional<graphics::RGBA> background;
};

}  // namespace quorix::qt
