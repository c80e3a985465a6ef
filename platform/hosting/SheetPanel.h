#pragma once

#include <optional>

#include "platform/hosting/Input.h"
#include "platform/hosting/SheetGeometry.h"
#include "platform/hosting/SheetScroll.h"
#include "platform/hosting/ViewFocus.h"
#include "platform/hosting/ViewHost.h"

namespace quorix::hosting {

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

  /// Lays the content out as tall as it would like to be, or as the panel if that is taller, and
  /// finds how far it scrolls.
  const render::Scene& lay();
  layout::Point inContent(layout::Point inWindow) const;
  std::optional<layout::Rect> inWindow(const std::optional<layout::Rect>& inContent) const;
  /// The frame of the focus ring in the window, unless it would stand out of the panel.
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
  /// The height in which the content is seen.
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
