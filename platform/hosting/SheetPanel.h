#pragma once

#include <optional>

#include "platform/hosting/Input.h"
#include "platform/hosting/SheetGeometry.h"
#include "platform/hosting/SheetScroll.h"
#include "platform/hosting/ViewFocus.h"
#include "platform/hosting/ViewHost.h"

namespace quorix::hosting {

/// The panel of a sheet with its scrolling content, wherever the panel stands: `corner` is its top
/// left in the window. Main thread.
struct SheetPanel {
  SheetPanel(text::TextEngine& engine, ViewHost::Client& client)
      : content(engine, client), focus(content) {}

  double restingHeight();
  /// The frame after `revealed` points of it have risen.
  layout::Rect frame(double revealed) const;
  graphics::RGBA color() const;

  /// Lays the content out as tall as it would like to be, or as the panel if that is taller, and
  /// finds how far it scrolls.
  const render::Scene& lay();
  layout::Point inContent(layout::Point point, layout::Point corner) const;
  std::optional<layout::Rect> inWindow(const std::optional<layout::Rect>& inContent,
                                       layout::Point corner) const;
  /// The frame of the focus ring, unless it would stand out of the panel.
  std::optional<layout::Rect> ring(layout::Point corner) const;
  bool isScrolledAway(const layout::Rect& inWindow, layout::Point corner);

  /// Adds fill, content and scroll indicator. Items that cover the top corners are rounded.
  void addTo(render::Scene& to, const layout::Rect& frame);
  render::Scene atRest();

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
  layout::Point origin(layout::Point corner) const;
  void addIndicator(render::Scene& to, const layout::Rect& frame);
};

}  // namespace quorix::hosting
