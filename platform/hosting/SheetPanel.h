#pragma once

#include <optional>

#include "platform/hosting/Input.h"
#include "platform/hosting/SheetScroll.h"
#include "platform/hosting/ViewHost.h"
#include "platform/hosting/ViewSession.h"
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

/// The panel of a sheet with its scrolling content. Main thread.
class SheetPanel {
 public:
  SheetPanel(text::TextEngine& engine, ViewHost::Client& client)
      : content(engine, client), focus(content) {}

  double restingHeight();
  /// The points of it that have risen.
  double revealed() const { return revealed_; }
  /// False when that changes nothing.
  bool reveal(double points);
  /// Its frame in the window.
  layout::Rect frame() const;
  graphics::RGBA color() const;

  /// Lays the content out at its ideal height, or the panel's if that is larger, and finds how far
  /// it scrolls.
  const render::Scene& lay();
  layout::Point inContent(layout::Point inWindow) const;
  std::optional<layout::Rect> inWindow(const std::optional<layout::Rect>& inContent) const;
  /// The frame in the window for the focus ring: the part of the focused element around which the
  /// whole ring is in the panel. Absent while the element is out of sight.
  std::optional<layout::Rect> ring() const;
  bool isScrolledAway(const layout::Rect& inWindow);

  // Display lists, kept until something changes.

  /// The content, its height or the scroll offset changed.
  void changed();
  /// Counts the changes.
  unsigned revision() const { return revision_; }
  /// The color over the window behind it.
  graphics::RGBA shade();
  /// Shade and panel, in the window.
  const render::Scene& overlay();
  /// The whole panel, with its top left corner as origin.
  const render::Scene& atRest();

  void scrollToFocus();
  /// How far a key scrolls; absent for a key that does not.
  std::optional<double> distanceOf(Key key);

  ViewHost content;
  ViewFocus focus;
  SheetGeometry geometry;
  SheetScroll scroll;

 private:
  /// The height in which the content is visible.
  double room();
  /// Where the content's top is while the panel's is at `corner`.
  layout::Point origin(layout::Point corner) const;
  /// Adds fill, content and scroll indicator at `frame`. Items that cover the top corners are
  /// rounded.
  void addTo(render::Scene& to, const layout::Rect& frame);
  void addIndicator(render::Scene& to, const layout::Rect& frame);

  double revealed_ = 0;
  unsigned revision_ = 0;
  std::optional<render::Scene> overlay_;
  std::optional<render::Scene> atRest_;
};

}  // namespace quorix::hosting
