#pragma once

#include <optional>
#include <span>

#include "platform/swiftui/Node.h"

namespace quorix::swiftui {

/// The default space between stack children, and the default minimum length of a spacer.
inline constexpr double defaultSpacing = 8;

/// An element whose rules depend on the axis of its stack.
struct ElementAlongAxis final : Element {
  ElementAlongAxis(const ElementRules& kind, layout::Axis stackAxis)
      : Element(kind), axis(stackAxis) {}

  static layout::Axis axisOf(const Element& self) {
    return static_cast<const ElementAlongAxis&>(self).axis;
  }

  layout::Axis axis;
};

/// The layout of rows and columns.
class Stack final : public ElementRules {
 public:
  /// Uses only the part of `alignment` across the axis.
  Stack(layout::Axis axis, layout::Alignment alignment, double spacing)
      : axis_(axis), alignment_(alignment), spacing_(spacing) {}

  /// The stack that combines several elements into one.
  static const Stack& column();

  layout::Axis axis() const { return axis_; }

  layout::Size measure(LayoutPass& in, Element& self, layout::ProposedSize proposal) const override;
  void place(LayoutPass& in, Element& self, layout::ProposedSize proposal) const override;
  double leastWidth(LayoutPass& in, Element& self) const override;
  void show(DisplayListBuilder& to, const Element& self) const override;

 private:
  /// The length that each child is offered along the axis.
  using Offers = std::span<const std::optional<double>>;
  Offers divide(LayoutPass& in, Element& self, layout::ProposedSize proposal) const;
  double totalSpacing(const Element& self) const;

  layout::Axis axis_;
  layout::Alignment alignment_;
  double spacing_;
};

/// A stack in an evaluation.
struct StackElement final : Element {
  explicit StackElement(const Stack& kind) : Element(kind) {}

  // Caches the latest division, because measuring and placing need the same one.
  layout::ProposedSize dividedFor;
  std::span<const std::optional<double>> offers;
  bool ignoresHeight =
      false;  ///< a row of texts and spacers: the height does not change its widths
};

}  // namespace quorix::swiftui
