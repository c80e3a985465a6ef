#pragma once

#include <functional>
#include <vector>

#include "platform/layout/Geometry.h"

namespace quorix::layout {

/// The space between stack children, and the least that a spacer takes, unless somebody says
/// otherwise.
inline constexpr double defaultSpacing = 8;

/// A stack child, as the division of its stack's length sees it. Lengths are along the stack's
/// axis.
struct StackChild {
  double atZero = 0;      ///< what it takes when offered nothing
  double atInfinity = 0;  ///< what it takes when offered everything
  bool isSpacer = false;
  double least = 0;  ///< what it needs lest a word in it break, as long as the others can give
};

/// Divides `available` (what is left after the spacing; may be infinite) among `children`: the
/// least flexible are asked first, each with an equal share of what remains, and spacers last, with
/// their least lengths kept for them. Nobody is offered less than `least`, nor so much that another
/// would be; where that is more than there is, all give way in proportion. `ask(index, offer)`
/// returns the length that the child chooses.
std::vector<double> distribute(const std::vector<StackChild>& children, double available,
                               const std::function<double(std::size_t, double)>& ask);

}  // namespace quorix::layout
