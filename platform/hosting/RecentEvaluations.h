#pragma once

#include <memory>
#include <vector>

#include "platform/swiftui/Evaluator.h"

namespace quorix::hosting {

/// Caches evaluations between `sizeThatFits` and `scene`. Keeps only the latest few, enough for the
/// views on one screen: ten thousand views that only measured themselves hold none. Main thread.
class RecentEvaluations {
 public:
  using Slot = std::unique_ptr<swiftui::Evaluation>;

  static RecentEvaluations& shared();

  void fill(Slot& slot, std::unique_ptr<swiftui::Evaluation> evaluation);
  /// Takes the evaluation out of `slot`. Null if the slot is empty.
  Slot take(Slot& slot);

 private:
  std::vector<Slot*> filled_;  ///< oldest first
};

}  // namespace quorix::hosting
