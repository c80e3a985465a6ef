#pragma once

#include <QSslCertificate>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <map>
#include <mutex>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

class QEventLoop;

namespace quorix::testing {

/// The bytes of the answer to one request, and faults of the server while it sends them.
struct Answer {
  std::string bytes;           ///< from the status line on
  bool hangUp = false;         ///< closes the connection after the last byte
  std::string filler = {};     ///< sent after the bytes, about once a millisecond without end
  std::uint16_t tunnelTo = 0;  ///< a local port to which the client is then connected
};

/// A well-formed answer. `headers` are whole lines; the length is added.
std::string httpAnswer(int status, std::string_view body, std::string_view headers = {});

/// An HTTP server on 127.0.0.1, on its own thread. `serve` sets its answers; any thread may call
/// it.
class LoopbackServer {
 public:
  enum class Scheme { http, https };

  explicit LoopbackServer(Scheme scheme = Scheme::http);
  ~LoopbackServer();
  LoopbackServer(const LoopbackServer&) = delete;
  LoopbackServer& operator=(const LoopbackServer&) = delete;

  std::string base() const;  ///< "http://127.0.0.1:4711"
  std::uint16_t port() const { return port_; }

  /// The certificate that a client has to trust for https.
  static QSslCertificate certificate();

  /// Answers every request for `path`. An unknown path gets an empty 404.
  void serve(const std::string& path, Answer answer);

  /// The heads of the requests for `path` so far, unchanged.
  std::vector<std::string> requests(const std::string& path) const;

  /// The bytes sent so far, to all clients.
  std::size_t bytesSent() const { return bytesSent_; }

 private:
  class Connection;

  Answer take(const std::string& path, const std::string& head);

  const Scheme scheme_;
  mutable std::mutex mutex_;
  std::map<std::string, Answer> answers_;
  std::map<std::string, std::vector<std::string>> requests_;
  std::uint16_t port_ = 0;
  std::atomic<std::size_t> bytesSent_ = 0;
  QEventLoop* loop_ = nullptr;
  std::thread thread_;
};

}  // namespace quorix::testing
