#pragma once

#include <optional>

#include "platform/foundation/Export.h"
#include "platform/render/Scene.h"
#include "platform/swiftui/View.h"
#include "qt/PictureOptions.h"

namespace quorix::qt {

/// A view laid out once, without a window: what a still picture shows, and what can be told of it
/// in words. Its actions are those of a view that is gone and are not to be called.
struct QUORIX_EXPORT StillScene {
  render::Scene view;
  std::optional<render::Scene> sheet;  ///< as large as the view's scene, and on top of it

  /// View and sheet in one.
  render::Scene whole() const&;
  render::Scene whole() &&;
  /// What assistive technology meets: a sheet hides all that is behind it.
  const render::Scene& topmost() const { return sheet ? *sheet : view; }
};

/// Lays out `view`, with `options.sheet` also the sheet that it opens. The view comes on screen for
/// the length of the call, so its tasks may start. Needs a QGuiApplication; main thread.
QUORIX_EXPORT StillScene stillScene(const swiftui::View& view, const PictureOptions& options = {});

}  // namespace quorix::qt
