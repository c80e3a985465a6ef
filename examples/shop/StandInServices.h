#pragma once

#include <chrono>
#include <functional>
#include <memory>

namespace quorix::examples {

/// Stands in for the vendor's translation service as long as it lives: requests for its addresses
/// are answered in process and never reach the network. It speaks English, Spanish, German,
/// Arabic and Japanese; other languages get the service's "not found" page. Main thread.
///
///     StandInServices services(std::chrono::milliseconds(250));
class StandInServices {
 public:
  /// Each answer takes `delay`.
  explicit StandInServices(std::chrono::milliseconds delay);

  /// Runs `then` on the main thread after all requests that are under way, or start on the main
  /// queue's next turn, have been answered and the views have read the answers.
  static void whenAnswered(std::function<void()> then);

 private:
  std::shared_ptr<void> registration_;
};

}  // namespace quorix::examples
