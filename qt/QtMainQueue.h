#pragma once

namespace quorix::qt {

/// Runs the main queue's work on the thread of Qt's application object.
///
/// Each piece of work is one turn of the event loop of its own, in the order of enqueueing, also
/// when a piece runs an event loop inside (a modal dialog). Work that is enqueued while there is no
/// application object, or still waits when one goes away, runs in the next one.
///
///     QtMainQueue::install();
///     foundation::MainQueue::async([] { /* main thread, on a later turn */ });
class QtMainQueue {
 public:
  /// Takes the main queue over. Main thread, before or after the application object is made; a
  /// second call does nothing.
  static void install();
};

}  // namespace quorix::qt
