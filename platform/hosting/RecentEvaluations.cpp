#include "platform/hosting/RecentEvaluations.h"

#include <utility>

#include "platform/foundation/Runtime.h"

namespace quorix::hosting {
namespace {

constexpr std::size_t kKept = 16;

}  // namespace

RecentEvaluations& RecentEvaluations::shared() {
  return foundation::Runtime::the<RecentEvaluations>();
}

void RecentEvaluations::fill(Slot& slot, std::unique_ptr<swiftui::Evaluation> evaluation) {
  std::erase(filled_, &slot);
  if (filled_.size() >= kKept) take(*filled_.front());
  slot = std::move(evaluation);
  filled_.push_back(&slot);
}

RecentEvaluations::Slot RecentEvaluations::take(Slot& slot) {
  if (slot) std::erase(filled_, &slot);
  return std::move(slot);
}

}  // namespace quorix::hosting
