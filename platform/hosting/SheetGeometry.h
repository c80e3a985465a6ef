#pragma once

#include "platform/layout/Geometry.h"
#include "platform/render/Scene.h"
#include "platform/swiftui/PresentationDetent.h"

namespace quorix::hosting {

/// The sizes of a sheet in a window. Points.
struct SheetGeometry {
  static constexpr double cornerRadius = 12;
  static constexpr double widest = 640;  ///< on wide windows the panel stays readable
  static constexpr double topGap = 10;   ///< between the largest sheet and the window's top

  layout::Size window;
  layout::EdgeInsets safeArea;  ///< what the device covers of the window
  bool operator==(const SheetGeometry&) const = default;

  double panelWidth() const;
  /// The height of the content area of the largest sheet.
  double largest() const;
  /// The height of the panel's content area at rest: the smallest of `detents`, limited by the
  /// largest sheet; the largest when there are none.
  double contentHeight(const swiftui::PresentationDetents& detents) const;
  /// What the device covers of the panel, which may be narrower than the window.
  layout::EdgeInsets panelInsets() const;
  /// The panel's frame after `revealed` points of it have risen.
  layout::Rect panel(double revealed) const;

  /// Cuts fills and hit areas of `scene` to what is in sight; a painter clips the rest.
  static void cut(render::Scene& scene, const layout::Rect& inSight);
  /// Rounds the items of `scene` that cover the top corners of `panel`.
  static void roundTop(render::Scene& scene, const layout::Rect& panel);
};

}  // namespace quorix::hosting
