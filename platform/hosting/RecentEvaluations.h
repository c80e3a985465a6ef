#pragma once

#include <memory>
#include <utility>
#include <vector>

#include "platform/foundation/Runtime.h"
#include "platform/swiftui/Evaluator.h"

namespace quorix::hosting {

/// Caches evaluations between `sizeThatFits` and `scene`. Keeps only the latest few, enough for the
/// views on one screen: ten thousand views that only measured themselves hold none. Main thread.
class RecentEvaluations {
 public:
  using Slot = std::unique_ptr<swiftui::Evaluation>;

  static RecentEvaluations& shared() { return foundation::Runtime::the<RecentEvaluations>(); }

  void fill(Slot& slot, std::unique_ptr<swiftui::Evaluation> evaluation) {
    constexpr std::size_t kept = 16;
    std::erase(filled_, &slot);
    if (filled_.size() >= kept) take(*filled_.front());
    slot = std::move(evaluation);
    filled_.push_back(&slot);
  }

  /// Takes the evaluation out of `slot`. Null if the slot is empty.
  Slot take(Slot& slot) {
    if (slot) std::erase(filled_, &slot);
    return std::move(slot);
  }

 private:
  std::vector<Slot*> filled_;  ///< oldest first
};

}  // namespace quorix::hosting
