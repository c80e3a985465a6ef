#pragma once

#include <memory>
#include <mutex>
#include <vector>

#include "qt/NetworkWorker.h"

namespace quorix::qt {

/// The one thread that performs the process's HTTP requests.
///
/// It starts with the first request and sleeps in its event loop between requests; a program that
/// never asks for anything never has it. (Qt looks up names on another thread, which ends half a
/// minute later.) It ends with Qt's application object, which waits for it: what is still in flight
/// ends with an error first. The next application object's first request starts it anew.
///
/// A protocol or a completion that blocks does not keep the application: after
/// `NetworkWorker::kPatience` the thread is left behind. It does nothing more, even if the protocol
/// returns.
class NetworkThread {
 public:
  using Request = NetworkWorker::Request;
  using Completion = NetworkWorker::Completion;

  static NetworkThread& shared();

  /// Performs `request` and calls `completion` exactly once: on this thread, or on a thread of its
  /// own when no application object is alive. A completion must not wait for the main thread, which
  /// may be waiting for this one. Any thread.
  void perform(Request request, Completion completion);

 private:
  NetworkThread() = default;
  static NetworkThread& instance();
  static void applicationBegins();
  static void applicationEnds();

  std::mutex mutex_;
  bool applicationAlive_ = false;
  std::unique_ptr<NetworkWorker> worker_;
  std::vector<std::unique_ptr<NetworkWorker>> leftBehind_;
};

}  // namespace quorix::qt
