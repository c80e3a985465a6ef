#pragma once

#include <QByteArray>
#include <QSslServer>
#include <functional>
#include <map>
#include <vector>

class QTcpSocket;

namespace quorix::examples {

/// Stands in for the vendor's page services as long as it lives: an HTTPS server on loopback, which
/// Qt WebEngine is told to take for the two services' hosts. Make it after the application object
/// and before the first page is shown; the engine reads what it is told once, and then keeps to it.
/// Main thread.
///
///     StandInPages pages;
///     pages.serve("/html/overlays/info", {.body = "<h1>Hello</h1>"});
class StandInPages {
 public:
  struct Request {
    QByteArray line;  ///< "GET /html/overlays/info?lang=en HTTP/1.1"
    QByteArray head;  ///< all of it, the line included
    QByteArray host;  ///< "modules.quorix.example"
    QByteArray path;  ///< "/html/overlays/info"
    QByteArray query;
  };
  struct Answer {
    int status = 200;
    QByteArray body = {};
    QByteArray headers = "Content-Type: text/html; charset=utf-8\r\n";  ///< whole lines
    bool comes = true;  ///< otherwise the request waits for ever
  };
  using Answerer = std::function<Answer(const Request&)>;

  StandInPages();
  StandInPages(const StandInPages&) = delete;
  StandInPages& operator=(const StandInPages&) = delete;

  /// What every path gets that was not told otherwise is a 404.
  void serve(const QByteArray& path, Answer answer);
  void serve(const QByteArray& path, Answerer answerer) { answers_[path] = std::move(answerer); }

  /// All requests so far, or those for `path`.
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
