#pragma once

#include <functional>

#include "platform/foundation/Export.h"

namespace quorix::foundation {

/// The queue of the main thread: work handed to it runs there, in order, on a later turn.
///
/// The engine installs its executor once. Until then work waits and `drain` runs it, which is how a
/// program without an event loop (the core's tests, a command-line tool) takes its turns.
class QUORIX_EXPORT MainQueue {
 public:
  using Work = std::function<void()>;
  using Executor = std::function<void(Work)>;

  /// Enqueues `work`. Any thread.
  static void async(Work work);

  /// Hands this and all later work to `executor`; what waited goes there first. An empty executor
  /// returns to waiting for `drain`. Main thread.
  static void install(Executor executor);

  /// Runs the waiting work, also what that work enqueues, and returns how many pieces ran.
  /// Main thread; for programs with no installed executor.
  static int drain();
};

}  // namespace quorix::foundation
