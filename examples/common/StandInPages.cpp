#include "examples/common/StandInPages.h"

#include <QCryptographicHash>
#include <QFile>
#include <QSslConfiguration>
#include <QSslKey>
#include <QTcpSocket>
#include <memory>
#include <utility>

void loadStandInCertificate() { Q_INIT_RESOURCE(tls); }

namespace quorix::examples {
namespace {

QByteArray file(const char* name) {
  QFile file(QStringLiteral(":/stand-in/") + QLatin1String(name));
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

StandInPages::Request parsed(const QByteArray& head) {
  StandInPages::Request request;
  request.head = head;
  request.line = head.left(head.indexOf("\r\n"));
  const QByteArray target = request.line.split(' ').value(1);
  const qsizetype mark = target.indexOf('?');
  request.path = mark < 0 ? target : target.left(mark);
  if (mark >= 0) request.query = target.mid(mark + 1);
  for (const QByteArray& line : head.split('\n')) {
    if (line.toLower().startsWith("host:")) request.host = line.mid(5).trimmed();
  }
  return request;
}

QByteArray written(const StandInPages::Answer& answer) {
  return "HTTP/1.1 " + QByteArray::number(answer.status) +
         " Status\r\nContent-Length: " + QByteArray::number(answer.body.size()) +
         "\r\nCache-Control: no-store\r\n" + answer.headers + "\r\n" + answer.body;
}

}  // namespace

StandInPages::StandInPages() {
  loadStandInCertificate();
  auto configuration = QSslConfiguration::defaultConfiguration();
  configuration.setLocalCertificate(QSslCertificate(file("stand-in.crt")));
  configuration.setPrivateKey(QSslKey(file("stand-in.key"), QSsl::Ec));
  server_.setSslConfiguration(configuration);
  QObject::connect(&server_, &QTcpServer::pendingConnectionAvailable, &server_, [this] {
    while (QTcpSocket* socket = server_.nextPendingConnection()) accept(socket);
  });
  server_.listen(QHostAddress::LocalHost);
  tellEngine();
}

void StandInPages::tellEngine() const {
  const QByteArray to = " 127.0.0.1:" + QByteArray::number(port());
  const QSslCertificate certificate(file("stand-in.crt"));
  const QByteArray key =
      QCryptographicHash::hash(certificate.publicKey().toDer(), QCryptographicHash::Sha256);
  qputenv("QTWEBENGINE_CHROMIUM_FLAGS",
          qgetenv("QTWEBENGINE_CHROMIUM_FLAGS") + " --host-resolver-rules=\"MAP " MODULES_HOST +
              to + ", MAP " WIDGET_HOST + to +
              "\" --ignore-certificate-errors-spki-list=" + key.toBase64());
}

void StandInPages::serve(const QByteArray& path, Answer answer) {
  answers_[path] = [answer = std::move(answer)](const Request&) { return answer; };
}

std::vector<StandInPages::Request> StandInPages::requests(const QByteArray& path) const {
  std::vector<Request> found;
  for (const Request& request : requests_) {
    if (request.path == path) found.push_back(request);
  }
  return found;
}

void StandInPages::forgetRequests(const QByteArray& path) {
  std::erase_if(requests_, [&](const Request& request) { return request.path == path; });
}

void StandInPages::accept(QTcpSocket* socket) {
  const auto pending = std::make_shared<QByteArray>();
  QObject::connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
  QObject::connect(socket, &QTcpSocket::readyRead, socket,
                   [this, socket, pending] { read(socket, *pending); });
  read(socket, *pending);  // data that arrived before the connection of the signal
}

/// Reads the requests. A connection may carry several, none with a body.
void StandInPages::read(QTcpSocket* socket, QByteArray& pending) {
  pending += socket->readAll();
  for (qsizetype end; (end = pending.indexOf("\r\n\r\n")) >= 0; pending.remove(0, end + 4)) {
    requests_.push_back(parsed(pending.left(end + 2)));
    const Request request = requests_.back();
    const auto answerer = answers_.find(request.path);
    const Answer answer =
        answerer == answers_.end() ? Answer{404, "Not found"} : answerer->second(request);
    if (answer.comes) socket->write(written(answer));
  }
}

}  // namespace quorix::examples
