#pragma once

#include <optional>

#include "platform/uikit/AxisLayout.h"
#include "platform/uikit/UIView.h"

namespace quorix::uikit {

/// Sizes and places views by their constraints and their content: widths first, because a text's
/// height depends on its width. Main thread.
class ViewLayout {
 public:
  explicit ViewLayout(const LayoutContext& context) : context_(context) {}

  /// The size of `view` for `proposal`, by its content or its constraints. A length that neither
  /// sets is the proposed one, or else the frame's.
  layout::Size sizeThatFits(const UIView& view, layout::ProposedSize proposal) const;

  /// Sets the frame of `view` and lays out its subviews.
  void layOut(UIView& view, const layout::Rect& frame) const;

 private:
  using Length = std::optional<double>;

  Length naturalWidth(const UIView& view) const;
  Length naturalHeight(const UIView& view, double width) const;
  std::vector<AxisSpan> across(const UIView& view, double width) const;

  const LayoutContext& context_;
};

}  // namespace quorix::uikit
