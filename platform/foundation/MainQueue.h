#pragma once

#include <chrono>
#include <functional>

#include "platform/foundation/Export.h"

namespace quorix::foundation {

/// The queue of the main thread: runs its work there, in order, on a later turn.
///
/// The engine installs its executor once. Until then work waits for `drain`, which a program
/// without an event loop (the core's tests, a command-line tool) calls.
class QUORIX_EXPORT MainQueue {
 public:
  using Work = std::function<void()>;
  using Executor = std::function<void(Work)>;
  using Timer = std::function<void(std::chrono::milliseconds, Work)>;

  /// Enqueues `work`. Any thread.
  static void async(Work work);
  /// Runs `work` after `delay`. Without a timer the work is dropped. Main thread.
  static void after(std::chrono::milliseconds delay, Work work);

  /// Has `executor` run the work: it gets a turn for each piece, also for those that wait already.
  /// A turn that it drops leaves its piece to the next one. With an empty executor, work waits for
  /// `drain` again. Main thread.
  static void install(Executor executor, Timer timer = {});

  /// Runs the waiting work and the work that this enqueues. Returns the number of pieces.
  /// Main thread; for programs with no installed executor.
  static int drain();
};

/// Runs `work` on a thread of its own, or at once if the system starts no more threads. Any thread.
QUORIX_EXPORT void asyncOnNewThread(const std::function<void()>& work);

}  // namespace quorix::foundation
