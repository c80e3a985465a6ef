#pragma once

#include <QByteArray>
#include <QSslServer>
#include <functional>
#include <map>
#include <vector>

class QTcpSocket;

namespace quorix::examples {

/// Replaces the vendor's page services while it exists: an HTTPS server on loopback, to which Qt
/// WebEngine maps the hosts of both services. Make it after the application object and before the
/// first page: the engine reads this setting only once. Main thread.
///
///     StandInPages pages;
///     pages.serve("/html/overlays/info", {.body = "<h1>Hello</h1>"});
class StandInPages {
 public:
  struct Request {
    QByteArray line;  ///< "GET /html/overlays/info?lang=en HTTP/1.1"
    QByteArray head;  ///< complete, with the request line
    QByteArray host;  ///< "modules.quorix.example"
    QByteArray path;  ///< "/html/overlays/info"
    QByteArray query;
  };
  struct Answer {
    int status = 200;
    QByteArray body = {};
    QByteArray headers = "Content-Type: text/html; charset=utf-8\r\n";  ///< complete lines
    bool comes = true;  ///< false: the request is never answered
  };
  using Answerer = std::function<Answer(const Request&)>;

  StandInPages();
  StandInPages(const StandInPages&) = delete;
  StandInPages& operator=(const StandInPages&) = delete;

  /// Sets the answer for `path`. Other paths get a 404.
  void serve(const QByteArray& path, Answer answer);
  void serve(const QByteArray& path, Answerer answerer) { answers_[path] = std::move(answerer); }

  /// All requests so far, or only those for `path`.
  const std::vector<Request>& requests() const { return requests_; }
  std::vector<Request> requests(const QByteArray& path) const;
  void forgetRequests() { requests_.clear(); }
  void forgetRequests(const QByteArray& path);

  quint16 port() const { return server_.serverPort(); }

 private:
  void tellEngine() const;
  void accept(QTcpSocket* socket);
  void read(QTcpSocket* socket, QByteArray& pending);

  QSslServer server_;
  std::map<QByteArray, Answerer> answers_;
  std::vector<Request> requests_;
};

}  // namespace quorix::examples
