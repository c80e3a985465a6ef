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

/// What is kept for each child: what it needs, or where not everybody can have that, for all the
/// same part of what they could give.
std::vector<double> reserves(const std::vector<StackChild>& children, double available) {
  double rigid = 0;
  double giving = 0;
  for (const StackChild& child : children) {
    rigid += child.atZero;
    if (!child.isSpacer) giving += std::max(0.0, child.least - child.atZero);
  }
  const double part = giving > 0 ? std::clamp((available - rigid) / giving, 0.0, 1.0) : 1;
  std::vector<double> kept(children.size());
  for (std::size_t i = 0; i < children.size(); ++i) {
    const StackChild& child = children[i];
    if (child.isSpacer || child.least <= 0) continue;
    kept[i] = child.atZero + part * std::max(0.0, child.least - child.atZero);
  }
  return kept;
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
  const std::vector<double> kept = reserves(children, available);
  double keptForOthers = std::accumulate(kept.begin(), kept.end(), 0.0);
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
    keptForOthers -= kept[index];
    const double share = left == infinity ? infinity : left / static_cast<double>(unasked);
    const double offer = std::max(std::min(share, left - keptForOthers), kept[index]);
    lengths[index] = ask(index, std::max(0.0, offer));
    if (left != infinity) left -= lengths[index];
    --unasked;
  }
  return lengths;
}

}  // namespace quorix::layout
