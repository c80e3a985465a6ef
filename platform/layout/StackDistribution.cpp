#include "platform/layout/StackDistribution.h"

#include <tuple>

namespace quorix::layout {

double prepareDistribution(StackChildren children, double available) {
  for (std::size_t i = 0; i < children.all.size(); ++i) children.asked[i] = &children.all[i];
  std::sort(children.asked.begin(), children.asked.end(),
            [](const StackChild* a, const StackChild* b) {
              return std::tuple(a->isSpacer, a->flexibility(), a) <
                     std::tuple(b->isSpacer, b->flexibility(), b);
            });

  double rigid = 0;
  double giving = 0;
  for (const StackChild& child : children.all) {
    rigid += child.atZero;
    if (!child.isSpacer) giving += std::max(0.0, child.least - child.atZero);
  }
  const double part = giving > 0 ? std::clamp((available - rigid) / giving, 0.0, 1.0) : 1;

  double sum = 0;
  for (StackChild& child : children.all) {
    const bool keeps = !child.isSpacer && child.least > 0;
    child.kept = keeps ? child.atZero + part * std::max(0.0, child.least - child.atZero) : 0;
    sum += child.kept;
  }
  return sum;
}

}  // namespace quorix::layout
