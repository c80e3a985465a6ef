#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "platform/uikit/NSLayoutConstraint.h"

namespace quorix::uikit {

// Constraints along one axis, as pure functions over lengths: a view (the container, index 0) and
// its subviews (1 and up). Points, from the container's start.

/// One of the subviews, before it is placed.
struct AxisItem {
  std::optional<double> start;    ///< where a frame set by hand puts it
  std::optional<double> length;   ///< likewise
  std::optional<double> natural;  ///< what its content asks for; nothing without content
};

/// `first` relates to `second` plus `constant`.
struct AxisRule {
  enum class Edge : std::uint8_t { start, end, length };
  static constexpr int nobody = -1;

  int first;
  Edge firstEdge;
  LayoutRelation relation;
  int second;  ///< `nobody`: the constant alone
  Edge secondEdge;
  double constant;
};

struct AxisSpan {
  double start = 0;
  double length = 0;
  bool operator==(const AxisSpan&) const = default;
};

/// Where the rules put each item in a container of length `extent`.
///
/// Rules are followed from edge to edge, so far as they lead. A length that they leave open is the
/// natural one, within what inequalities allow, or 0; a position that they leave open is the start.
/// Where rules contradict each other the earlier ones hold.
std::vector<AxisSpan> placeAlong(const std::vector<AxisItem>& items,
                                 const std::vector<AxisRule>& rules, double extent);

/// The least container that gives every item its length; nothing when no item's content asks for
/// anything.
std::optional<double> fittingExtent(const std::vector<AxisItem>& items,
                                    const std::vector<AxisRule>& rules);

}  // namespace quorix::uikit
