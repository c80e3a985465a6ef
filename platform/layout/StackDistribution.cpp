#include "platform/layout/StackDistribution.h"

#include <algorithm>
#include <numeric>

namespace quorix::layout {
namespace {

double flexibility(const StackChild& child) {
  return child.atInfinity == infinity ? infinity : child.atInfinity - child.atZero;
}

/// The children in the order in which they are asked.
std::vector<std::size_t> askingOrder(const std::vector<StackChild>& children) {
  std::vector<std::size_t> order(children.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
    if (children[a].isSpacer != children[b].isSpacer) return children[b].isSpacer;
    return flexibility(children[a]) < flexibility(children[b]);
  });
  return order;
}

}  // namespace

std::vector<double> distribute(const std::vector<StackChild>& children, double available,
                               const std::function<double(std::size_t, double)>& ask) {
  std::vector<double> lengths(children.size());
  double left = available;
  std::size_t unasked = 0;
  for (const StackChild& child : children) {
    if (child.isSpacer) {
      left -= child.atZero;
    } else {
      ++unasked;
    }
  }
  bool spacersTurn = false;
  for (const std::size_t index : askingOrder(children)) {
    if (children[index].isSpacer && !spacersTurn) {
      spacersTurn = true;
      for (const StackChild& child : children) {
        if (!child.isSpacer) continue;
        left += child.atZero;
        ++unasked;
      }
    }
    const double offer = left == infinity ? infinity : left / static_cast<double>(unasked);
    lengths[index] = ask(index, std::max(0.0, offer));
    if (left != infinity) left -= lengths[index];
    --unasked;
  }
  return lengths;
}

}  // namespace quorix::layout
