#pragma once

#include <QNetworkAccessManager>
#include <QNetworkRequest>
#include <QObject>
#include <QThread>
#include <deque>
#include <memory>
#include <mutex>

#include "platform/foundation/URLSession.h"

namespace quorix::qt {

/// The one thread that performs the process's HTTP requests.
///
/// It starts with the first request and sleeps in its event loop between requests; a program that
/// never asks for anything never has it. (Qt Network keeps one more thread beneath it for the
/// sockets, and an idle connection for two minutes.) It ends with Qt's application object, which
/// waits for it: what is still in flight ends with an error first. The next application object's
/// first request starts it anew.
class NetworkThread {
 public:
  struct Job {
    foundation::URL url;      ///< what was asked for, and what protocols are asked to answer
    QNetworkRequest request;  ///< what goes to the network when none of them does
    foundation::URLTransport::Completion completion;
  };

  static NetworkThread& shared();

  /// Performs `job` and calls its completion exactly once: on this thread, or on a thread of its
  /// own when no application object is alive. A completion must not wait for the main thread, which
  /// may be waiting for this one. Any thread.
  void perform(Job job);

 private:
  NetworkThread() = default;
  static NetworkThread& instance();
  static void applicationBegins();
  static void applicationEnds();
  void startThread();
  std::deque<Job> takeJobs();

  // On the thread.
  void performAll();
  void performOne(Job job);
  void endAll();

  std::mutex mutex_;
  bool applicationAlive_ = false;
  std::deque<Job> jobs_;
  std::unique_ptr<QThread> thread_;
  std::unique_ptr<QObject> receiver_;               // of the thread's turns
  std::unique_ptr<QNetworkAccessManager> network_;  // the thread's own
};

}  // namespace quorix::qt
