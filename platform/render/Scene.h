#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <variant>
#include <vector>

#include "platform/foundation/Action.h"
#include "platform/foundation/Bundle.h"
#include "platform/foundation/Export.h"
#include "platform/graphics/RGBA.h"
#include "platform/layout/Geometry.h"
#include "platform/text/AttributedText.h"

namespace quorix::render {

/// Content that paints itself (a web page). The display list only reserves its place. The surface
/// puts it above the items before it and below those after it.
class QUORIX_EXPORT Embed {
 public:
  virtual ~Embed() = default;
};

/// A text at its place. Lines break at the frame's width; the frame's height holds all lines.
struct TextItem {
  layout::Rect frame;
  text::AttributedText text;
};

/// An image of a bundle's asset catalog, stretched to the frame. A template image is drawn in
/// `tint`, other images in their own colors.
struct ImageItem {
  layout::Rect frame;
  std::string name;
  foundation::Bundle::Ref bundle;
  graphics::RGBA tint;
};

struct FillItem {
  layout::Rect frame;
  graphics::RGBA color;
  double topCornerRadius = 0;     ///< of the two upper corners
  double bottomCornerRadius = 0;  ///< of the two lower ones
};

/// A stroke of `width` points just inside the frame.
struct StrokeItem {
  layout::Rect frame;
  graphics::RGBA color;
  double width = 1;
  double cornerRadius = 0;  ///< of the frame
};

/// Clips all later items of the list to the frame.
struct ClipItem {
  layout::Rect frame;
};

/// The place of content that paints itself.
struct QUORIX_EXPORT EmbedItem {
  layout::Rect frame;
  std::shared_ptr<Embed> content;
  graphics::RGBA background;      ///< shown until the content has painted, and in still pictures
  double topCornerRadius = 0;     ///< of the two upper corners
  std::size_t hitAreasBelow = 0;  ///< the number of hit areas below the content

  /// The content's frame: the item's frame below the rounded corners. The corner strip shows only
  /// the background.
  layout::Rect room() const;
};

using Item = std::variant<TextItem, ImageItem, FillItem, StrokeItem, EmbedItem, ClipItem>;

/// An area that reacts to taps. Later areas are on top of earlier ones.
struct HitArea {
  layout::Rect frame;
  foundation::Action action;
};

enum class Role : std::uint8_t { staticText, button, heading, image, link };

/// An element for assistive technology. `action` is empty if the element only has a text.
struct AccessibilityElement {
  layout::Rect frame;
  Role role = Role::staticText;
  std::string label;
  std::string hint;
  foundation::Action action;
};

/// The display list of a laid-out view: everything that a surface needs to paint it, to handle taps
/// and to serve assistive technology. Frames are in points from the top left. They are already
/// mirrored for right-to-left and on whole device pixels at the display's scale. Items are in paint
/// order, accessibility elements in reading order.
struct QUORIX_EXPORT Scene {
  layout::Size size;
  graphics::Appearance appearance = graphics::Appearance::light;
  std::vector<Item> items;
  std::vector<HitArea> hitAreas;
  std::vector<AccessibilityElement> accessibility;

  /// The side of the square around an area's center that takes its taps, in points: the size that a
  /// finger needs.
  static constexpr double roomToTap = 44;

  /// The area that gets a tap at `point`: the top-most one under it, or else the nearest whose
  /// enlarged tap area contains it. Null without one, and where an embed's content gets the tap.
  const HitArea* hitTest(layout::Point point) const;
  /// Whether the keyboard focus stops at accessibility element `index`: of several elements with
  /// the same action, only at the first.
  bool isFocusStop(std::size_t index) const;
  /// The frame around all elements that have the action of element `index`.
  layout::Rect actingFrame(std::size_t index) const;
  /// Appends `other`, moved by `offset`.
  void append(Scene other, layout::Point offset);
};

/// The largest side of a picture of a view, in device pixels. Graphics cards support textures of
/// this size.
inline constexpr double mostPixels = 8192;

/// The part to paint of a view of `size` points while `seen` is visible, at `scale` device pixels a
/// point. Sides longer than `mostPixels` are cut to that length with `seen` in the middle, so that
/// the view can scroll a while before it is painted again. The part begins on a whole device pixel.
/// Any thread.
QUORIX_EXPORT layout::Rect partToPaint(layout::Size size, const layout::Rect& seen, double scale);

/// The display list of `part`, with the part's origin at zero. Any thread.
QUORIX_EXPORT Scene partOf(const Scene& scene, const layout::Rect& part);

/// The settings of a display list.
struct Display {
  graphics::Appearance appearance = graphics::Appearance::light;
  layout::LayoutDirection direction = layout::LayoutDirection::leftToRight;
  double scale = 1;           ///< device pixels for each point
  std::string language = {};  ///< of labels without a text of their own; a code such as "tr"
};

}  // namespace quorix::render
