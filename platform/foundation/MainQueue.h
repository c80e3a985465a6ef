#pragma once

#include <chrono>
#include <functional>

#include "platform/foundation/Export.h"

namespace quorix::foundation {

/// The queue of the main thread: runs its work there, in order, on a later turn.
///
/// The engine installs its executor once. Before that, work waits for `drain`. Programs without an
/// event loop (the core's tests, a command-line tool) call it.
class QUORIX_EXPORT MainQueue {
 public:
  using Work = std::function<void()>;
  using Executor = std::function<void(Work)>;
  using Timer = std::function<void(std::chrono::milliseconds, Work)>;

  /// Enqueues `work`. Any thread.
  static void async(Work work);
  /// Runs `work` after `delay`. Without a timer the work is dropped. Main thread.
  static void after(std::chrono::milliseconds delay, Work work);

  /// Lets `executor` run the work: it is called once for each piece, also for the pieces that
  /// already wait. If it drops a call, the next call runs that piece. With an empty executor, work
  /// waits for `drain` again. Main thread.
  static void install(Executor executor, Timer timer = {});

  /// Runs the waiting work, and the work that it adds. Returns the number of pieces. Main thread;
  /// for programs without an executor.
  static int drain();
};

/// Runs `work` on a thread of its own, or at once if the system starts no more threads. Any thread.
QUORIX_EXPORT void asyncOnNewThread(const std::function<void()>& work);

}  // namespace quorix::foundation
