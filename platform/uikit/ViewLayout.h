#pragma once

#include <optional>

#include "platform/uikit/AxisLayout.h"
#include "platform/uikit/UIView.h"

namespace quorix::uikit {

/// Sizes and places views by their constraints and their content: across first, then down, since a
/// text's height follows from its width. Main thread.
class ViewLayout {
 public:
  explicit ViewLayout(const LayoutContext& context) : context_(context) {}

  /// The size that `view` chooses when offered `proposal`: its content's, or what its constraints
  /// ask for. What neither says is taken from the proposal, and at last from its frame.
  layout::Size sizeThatFits(const UIView& view, layout::ProposedSize proposal) const;

  /// Gives `view` its frame, and all in it theirs.
  void layOut(UIView& view, const layout::Rect& frame) const;

 private:
  using Length = std::optional<double>;

  Length naturalWidth(const UIView& view) const;
  Length naturalHeight(const UIView& view, double width) const;
  std::vector<AxisSpan> across(const UIView& view, double width) const;
  std::vector<AxisItem> itemsAcross(const UIView& view) const;
  std::vector<AxisItem> itemsDown(const UIView& view, const std::vector<AxisSpan>& across) const;

  const LayoutContext& context_;
};

}  // namespace quorix::uikit
