#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

#include "platform/uikit/NSLayoutConstraint.h"

namespace quorix::uikit {

// Solves constraints along one axis. The container has index 0, its subviews have 1 and up. Lengths
// are points from the container's start.

/// One of the subviews, before it is placed.
struct AxisItem {
  std::optional<double> start;   ///< of a frame set by hand
  std::optional<double> length;  ///< of a frame set by hand
};

/// The natural length of an item's content, by the item's index in the list; absent without
/// content. Called at most once for each item, and only if no rule sets its length.
using NaturalLength = std::function<std::optional<double>(std::size_t)>;

/// `first` relates to `second` plus `constant`.
struct AxisRule {
  enum class Edge : std::uint8_t { start, end, length };
  static constexpr int none = -1;

  int first;
  Edge firstEdge;
  LayoutRelation relation;
  int second;  ///< `none`: only the constant
  Edge secondEdge;
  double constant;
};

struct AxisSpan {
  double start = 0;
  double length = 0;
};

/// Places each item in a container of length `extent`.
///
/// Follows the rules from edge to edge. If they leave a length open, it is the natural one, limited
/// by the inequalities, or 0. If they leave a position open, it is the start. If rules contradict
/// each other, the earlier one holds.
std::vector<AxisSpan> placeAlong(const std::vector<AxisItem>& items,
                                 const std::vector<AxisRule>& rules, const NaturalLength& natural,
                                 double extent);

/// The smallest length of a container in which every item gets its length; absent when no rule
/// bounds the container.
std::optional<double> fittingExtent(const std::vector<AxisItem>& items,
                                    const std::vector<AxisRule>& rules,
                                    const NaturalLength& natural);

}  // namespace quorix::uikit
