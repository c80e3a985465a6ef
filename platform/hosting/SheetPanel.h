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
  static constexpr double widest = 640;  ///< keeps lines readable in wide windows
  static constexpr double topGap = 10;   ///< between the largest sheet and the window's top

  layout::Size window;
  layout::EdgeInsets safeArea;  ///< insets that the device covers
  bool operator==(const SheetGeometry&) const = default;

  double panelWidth() const;
  /// The height of the content area of the largest sheet.
  double largest() const;
  /// The height of the panel's content area at rest: the smallest of `detents`, at most that of the
  /// largest sheet. Without detents, the largest.
  double contentHeight(const swiftui::PresentationDetents& detents) const;
  /// The insets that the device covers of the panel, which may be narrower than the window.
  layout::EdgeInsets panelInsets() const;
  /// The panel's frame while `revealed` points of it are visible.
  layout::Rect panel(double revealed) const;

  /// Clips fills and hit areas of `scene` to the visible area. A painter clips the other items.
  static void cut(render::Scene& scene, const layout::Rect& inSight);
  /// Rounds the items of `scene` that cover the top corners of `panel`.
  static void roundTop(render::Scene& scene, const layout::Rect& panel);
};

/// Whether `scene` has an embed with content.
bool hasEmbeds(const render::Scene& scene);

/// The panel of a sheet with its scrolling content. Main thread.
class SheetPanel {
 public:
  SheetPanel(text::TextEngine& engine, ViewHost::Client& client)
      : content(engine, client), focus(content) {}

  double restingHeight();
  /// The visible height of the panel, in points.
  double revealed() const { return revealed_; }
  /// False if this changes nothing.
  bool reveal(double points);
  /// Its frame in the window.
  layout::Rect frame() const;
  graphics::RGBA color() const;

  /// Lays out the content at its ideal height or the panel's, whichever is larger, and sets the
  /// scroll range.
  const render::Scene& lay();
  layout::Point inContent(layout::Point inWindow) const;
  std::optional<layout::Rect> inWindow(const std::optional<layout::Rect>& inContent) const;
  /// The rectangle in the window to draw the focus ring around: the part of the focused element
  /// whose ring fits in the panel. Absent while the element is not visible.
  std::optional<layout::Rect> ring() const;
  bool isScrolledAway(const layout::Rect& inWindow);

  // Display lists, cached until a change.

  /// The content, its height or the scroll offset changed.
  void changed();
  /// The number of changes.
  unsigned revision() const { return revision_; }
  /// The color over the window behind it.
  graphics::RGBA shade();
  /// Shade and panel, in the window.
  const render::Scene& overlay();
  /// The whole panel, with its origin at zero.
  const render::Scene& atRest();

  void scrollToFocus();
  /// How far a key scrolls, in points; absent for other keys.
  std::optional<double> scrollDistance(Key key);

  ViewHost content;
  ViewFocus focus;
  SheetGeometry geometry;
  SheetScroll scroll;

 private:
  /// The height of the visible part of the content.
  double visibleHeight();
  /// The content's origin if the panel's origin is `corner`.
  layout::Point origin(layout::Point corner) const;
  /// Adds the panel's fill, content and scroll indicator at `frame`. Rounds items that cover the
  /// top corners.
  void addTo(render::Scene& to, const layout::Rect& frame);
  void addIndicator(render::Scene& to, const layout::Rect& frame);

  double revealed_ = 0;
  unsigned revision_ = 0;
  std::optional<render::Scene> overlay_;
  std::optional<render::Scene> atRest_;
  // `revision_` at the start of their layout, during which the content may change.
  unsigned overlayRevision_ = 0;
  unsigned atRestRevision_ = 0;
};

}  // namespace quorix::hosting
