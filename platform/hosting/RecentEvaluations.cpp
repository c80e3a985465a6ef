#include "platform/hosting/RecentEvaluations.h"

#include <utility>

namespace quorix::hosting {
namespace {

constexpr std::size_t kKept = 16;

}  // namespace

RecentEvaluations& RecentEvaluations::shared() {
  static auto& instance = *new RecentEvaluations;  // never destroyed: some hosts are static too
  return instance;
}

void RecentEvaluations::fill(Slot& slot, swiftui::Evaluation evaluation) {
  std::erase(filled_, &slot);
  if (filled_.size() >= kKept) empty(*filled_.front());
  slot = std::make_unique<swiftui::Evaluation>(std::move(evaluation));
  filled_.push_back(&slot);
}

void RecentEvaluations::empty(Slot& slot) {
  if (!slot) return;
  std::erase(filled_, &slot);
  slot.reset();
}

}  // namespace quorix::hosting
