#pragma once

#include <optional>
#include <span>

#include "platform/swiftui/Node.h"

namespace quorix::swiftui {

/// The rules of views in a row or a column.
class Stack final : public ElementRules {
 public:
  /// Of `alignment` only the part across the axis counts.
  Stack(layout::Axis axis, layout::Alignment alignment, double spacing)
      : axis_(axis), alignment_(alignment), spacing_(spacing) {}

  /// For several views where one is expected.
  static const Stack& column();

  layout::Axis axis() const { return axis_; }

  layout::Size measure(LayoutPass& in, Element& self, layout::ProposedSize proposal) const override;
  void place(LayoutPass& in, Element& self, layout::ProposedSize proposal) const override;
  double leastWidth(LayoutPass& in, Element& self) const override;
  void show(DisplayListBuilder& to, const Element& self) const override;

 private:
  /// What it offers each child along its axis.
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

  // How it was divided last: measuring and placing ask for the same.
  layout::ProposedSize dividedFor;
  std::span<const std::optional<double>> offers;
  bool anyHeight = false;  ///< a row of texts, which are as wide at every height
};

}  // namespace quorix::swiftui
