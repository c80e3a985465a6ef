#pragma once

#include <chrono>
#include <functional>
#include <memory>

namespace quorix::examples {

/// Replaces the vendor's translation service while it exists: requests for its addresses are
/// answered in the process and never use the network. It has English, Spanish, German, Arabic and
/// Japanese; other languages get the service's "not found" page. Main thread.
///
///     StandInServices services(std::chrono::milliseconds(250));
class StandInServices {
 public:
  /// Each answer takes `delay`.
  explicit StandInServices(std::chrono::milliseconds delay);

  /// Runs `then` on the main thread after all current requests, and those that start on the main
  /// queue's next turn, are answered and the views have read the answers.
  static void whenAnswered(std::function<void()> then);

 private:
  std::shared_ptr<void> registration_;
};

}  // namespace quorix::examples
