#pragma once

#include <algorithm>
#include <cstddef>
#include <span>

#include "platform/layout/Geometry.h"

namespace quorix::layout {

/// The default space between stack children, and the default minimum length of a spacer.
inline constexpr double defaultSpacing = 8;

/// The lengths of a stack child along the stack's axis.
struct StackChild {
  double atZero = 0;      ///< chosen length for the offer 0
  double atInfinity = 0;  ///< chosen length for an infinite offer
  double least = 0;       ///< minimum length without breaking a word
  double length = 0;      ///< the chosen length
  double kept = 0;        ///< reserved: offers to other children leave at least this
  bool isSpacer = false;

  double flexibility() const { return atInfinity == infinity ? infinity : atInfinity - atZero; }
};

/// The children of a stack, in their own order and in the order of the offers.
struct StackChildren {
  std::span<StackChild> all;
  std::span<StackChild*> asked;  ///< same size; `distribute` fills it
};

/// Fills `asked`: the least flexible first, spacers last. Reserves each child's least length in
/// `kept`. If these exceed `available` together, reduces each child by the same fraction of what it
/// can give up. Returns the sum of the reserved lengths.
double prepareDistribution(StackChildren children, double available);

/// Divides `available` (what is left after the spacing; may be infinite) among `children`. Offers
/// one child after the other an equal share of the rest; the spacers' minimum lengths are reserved.
/// No offer is below the child's `least`, or pushes another child below its own, while `available`
/// suffices. `ask(index, offer)` returns the length that the child chooses.
template <class Ask>
void distribute(StackChildren children, double available, Ask ask) {
  double keptForOthers = prepareDistribution(children, available);
  double left = available;
  double unasked = 0;
  for (const StackChild& child : children.all) {
    if (child.isSpacer) {
      left -= child.atZero;
    } else {
      ++unasked;
    }
  }
  bool spacersTurn = false;
  for (StackChild* child : children.asked) {
    if (child->isSpacer && !spacersTurn) {
      spacersTurn = true;
      for (const StackChild& other : children.all) {
        if (!other.isSpacer) continue;
        left += other.atZero;
        ++unasked;
      }
    }
    keptForOthers -= child->kept;
    const double share = left == infinity ? infinity : left / unasked;
    const double offer = std::max(std::min(share, left - keptForOthers), child->kept);
    child->length =
        ask(static_cast<std::size_t>(child - children.all.data()), std::max(0.0, offer));
    if (left != infinity) left -= child->length;
    --unasked;
  }
}

}  // namespace quorix::layout
