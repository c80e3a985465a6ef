#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "platform/foundation/Bundle.h"
#include "platform/graphics/RGBA.h"
#include "platform/layout/Geometry.h"
#include "platform/layout/SelfSizing.h"
#include "platform/text/AttributedText.h"

namespace quorix::layout {

/// The element kinds that layout knows, with every setting that reaches them already resolved.
namespace elements {

struct Empty {};
struct Text {
  text::AttributedText text;
  /// Broken into lines, it takes the width that it was offered and not that of its longest line.
  bool spansWhenWrapped = false;
  /// Where its longest word does not fit, it is drawn smaller rather than broken inside the word,
  /// down to this part of its size.
  double smallestPart = 1;
  /// The part of its size that it is drawn at, as `Layout::place` found it.
  double drawnAt = 1;
};
struct Image {
  std::string name;
  foundation::Bundle::Ref bundle;
  Size naturalSize;
  bool resizable = false;
  graphics::RGBA tint;
};
struct Spacer {
  Axis axis;  ///< of the stack that it stands in
  double minLength;
};
struct Divider {
  Axis axis;  ///< of the stack that it stands in
  graphics::RGBA color;
};
/// Fills what it is offered.
struct Fill {
  graphics::RGBA color;
};
/// Strokes `width` points inside the edges of what it is offered.
struct Stroke {
  graphics::RGBA color;
  double width;
};
/// Content of another toolkit; `content` is an index into the evaluation's hosted contents.
struct Hosted {
  int content;
  SelfSizing* sizing;
};
struct Stack {
  Axis axis;
  Alignment alignment;
  double spacing;
};
/// Between `count` children.
inline double totalSpacing(const Stack& stack, std::size_t count) {
  return count == 0 ? 0 : stack.spacing * static_cast<double>(count - 1);
}
struct Padding {
  EdgeInsets insets;
};
struct FixedFrame {
  std::optional<double> width;
  std::optional<double> height;
  Alignment alignment;
};
struct MaxWidthFrame {
  Alignment alignment;
};
struct FixedSize {
  bool horizontal;
  bool vertical;
};
/// As large as fits, in the proportion of the child's ideal size.
struct ScaledToFit {};
/// The second child lies over the first.
struct Overlay {
  Alignment alignment;
};
/// The second child lies behind the first.
struct Background {};
/// Where it reaches the safe area's edge on one of `edges`, its child goes on beyond.
struct IgnoringSafeArea {
  Edges edges;
};
/// Changes nothing in the layout; `decoration` is an index into the evaluation's decorations.
struct Decorated {
  int decoration;
};

}  // namespace elements

/// One element of a view that is ready for layout.
struct Element {
  using Kind = std::variant<
      elements::Empty, elements::Text, elements::Image, elements::Spacer, elements::Divider,
      elements::Fill, elements::Stroke, elements::Hosted, elements::Stack, elements::Padding,
      elements::FixedFrame, elements::MaxWidthFrame, elements::FixedSize, elements::ScaledToFit,
      elements::Overlay, elements::Background, elements::IgnoringSafeArea, elements::Decorated>;
  Kind kind;
  std::vector<Element> children;

  /// Where `Layout::place` put it.
  Rect frame;
  /// What `Layout::measure` answered in this pass.
  std::vector<std::pair<ProposedSize, Size>> measured;
};

}  // namespace quorix::layout
