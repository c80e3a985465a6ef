#pragma once

#include <algorithm>
#include <cstddef>
#include <span>

#include "platform/layout/Geometry.h"

namespace quorix::layout {

/// The space between stack children, and the least that a spacer takes, where nothing else is said.
inline constexpr double defaultSpacing = 8;

/// A stack child, as the division of its stack's length sees it. Lengths are along the stack's
/// axis.
struct StackChild {
  double atZero = 0;      ///< what it takes when offered nothing
  double atInfinity = 0;  ///< what it takes when offered everything
  double least = 0;       ///< minimum length without breaking a word
  double length = 0;      ///< what it chose
  double kept = 0;        ///< what no offer to another child may take from it
  bool isSpacer = false;

  double flexibility() const { return atInfinity == infinity ? infinity : atInfinity - atZero; }
};

/// The children of a stack in their order, and in the order in which they are asked.
struct StackChildren {
  std::span<StackChild> all;
  std::span<StackChild*> asked;  ///< as many, to be filled by `distribute`
};

/// Fills `asked`: the least flexible first, spacers last. Sets what is kept for each child: its
/// least length; if these exceed `available` together, each child gives up the same part of what it
/// can. Returns the sum of what is kept.
double prepareDistribution(StackChildren children, double available);

/// Divides `available` (what is left after the spacing; may be infinite) among `children`: one
/// after the other is asked with an equal share of what remains, the spacers' least lengths kept
/// for them. No child is offered less than `least`, and no offer may push another child below its own.
/// `ask(index, offer)` returns the length that the child chooses.
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
