#pragma once

#include <memory>
#include <vector>

#include "platform/swiftui/Evaluation.h"

namespace quorix::hosting {

/// Where a view keeps its evaluation from one question to the next: how large, then where is what.
/// Only the latest few slots stay filled, enough for a screen of views that are being placed; ten
/// thousand views that were only asked for their size hold none. Main thread.
class RecentEvaluations {
 public:
  using Slot = std::unique_ptr<swiftui::Evaluation>;

  static RecentEvaluations& shared();

  void fill(Slot& slot, swiftui::Evaluation evaluation);
  void empty(Slot& slot);

 private:
  std::vector<Slot*> filled_;  ///< the latest last
};

}  // namespace quorix::hosting
