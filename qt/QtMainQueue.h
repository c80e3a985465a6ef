#pragma once

namespace quorix::qt {

/// Runs the main queue's work on the thread of Qt's application object.
///
/// Each piece of work runs in a turn of the event loop of its own, in the order of enqueueing, also
/// when a piece runs an event loop inside (a modal dialog). Work that is enqueued without an
/// application object, or still waits when one is destroyed, runs with the next one.
///
///     QtMainQueue::install();
///     foundation::MainQueue::async([] { /* main thread, on a later turn */ });
class QtMainQueue {
 public:
  /// Main thread, before or after the application object is made. A second call does nothing.
  static void install();
};

}  // namespace quorix::qt
