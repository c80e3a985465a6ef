#pragma once

#include <memory>
#include <vector>

#include "platform/swiftui/Evaluator.h"

namespace quorix::hosting {

/// Caches evaluations between `sizeThatFits` and `scene`. Only the latest few slots stay filled,
/// which is enough for a screen of views that are being placed: ten thousand views that only
/// measured themselves hold none. Main thread.
class RecentEvaluations {
 public:
  using Slot = std::unique_ptr<swiftui::Evaluation>;

  static RecentEvaluations& shared();

  void fill(Slot& slot, std::unique_ptr<swiftui::Evaluation> evaluation);
  /// Empties `slot`; null where it was empty.
  Slot take(Slot& slot);

 private:
  std::vector<Slot*> filled_;  ///< oldest first
};

}  // namespace quorix::hosting
