#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "platform/foundation/Bundle.h"
#include "platform/foundation/Export.h"
#include "platform/graphics/RGBA.h"
#include "platform/layout/Geometry.h"
#include "platform/render/Embed.h"
#include "platform/text/AttributedText.h"

namespace quorix::render {

/// A text at its place. The frame's width is the width to break at; its height holds every line.
struct TextItem {
  layout::Rect frame;
  text::AttributedText text;
};

/// An image of a bundle's asset catalogue, stretched to the frame.
struct ImageItem {
  layout::Rect frame;
  std::string name;
  foundation::Bundle::Ref bundle;
  graphics::RGBA tint;                            ///< for template images
  std::optional<bool> isTemplate = std::nullopt;  ///< absent: as the asset says
};

struct FillItem {
  layout::Rect frame;
  graphics::RGBA color;
  double topCornerRadius = 0;  ///< of the two upper corners
};

/// A stroke of `width` points just inside the frame.
struct StrokeItem {
  layout::Rect frame;
  graphics::RGBA color;
  double width = 1;
};

/// Room for something that paints itself.
struct QUORIX_EXPORT EmbedItem {
  layout::Rect frame;
  std::shared_ptr<Embed> content;
  graphics::RGBA background;      ///< shows until the content has painted, and in pictures
  double topCornerRadius = 0;     ///< of the two upper corners
  std::size_t hitAreasBelow = 0;  ///< so many of the scene's hit areas lie below the content

  /// Where the content stands: clear of the rounded corners, beside which the background shows.
  layout::Rect room() const;
};

using Item = std::variant<TextItem, ImageItem, FillItem, StrokeItem, EmbedItem>;

/// Where a tap does something. Later areas lie on top of earlier ones.
struct HitArea {
  layout::Rect frame;
  std::function<void()> action;
};

enum class Role : std::uint8_t { staticText, button, heading, image, link };

/// What assistive technology meets, in reading order. `action` is empty when it only reads.
struct AccessibilityElement {
  layout::Rect frame;
  Role role = Role::staticText;
  std::string label;
  std::string hint;
  std::function<void()> action;
};

/// A laid-out view: all that a surface needs to paint it, to read taps from it and to tell
/// assistive technology about it. Frames are in points from the top left, already mirrored for
/// right-to-left and on whole device pixels at the scale it was made for. Items are in paint order.
struct QUORIX_EXPORT Scene {
  layout::Size size;
  graphics::Appearance appearance = graphics::Appearance::light;
  std::vector<Item> items;
  std::vector<HitArea> hitAreas;
  std::vector<AccessibilityElement> accessibility;

  /// The top-most area under `point`, or null; where an embed's content takes it, null too.
  const HitArea* hitTest(layout::Point point) const;
  /// The embed whose content takes what happens at `point`, or null.
  const EmbedItem* embedAt(layout::Point point) const;
  /// Appends `other`, moved by `offset`.
  void append(const Scene& other, layout::Point offset);
};

}  // namespace quorix::render
