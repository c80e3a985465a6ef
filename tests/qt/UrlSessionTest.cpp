#include <QLoggingCategory>
#include <QRegularExpression>
#include <thread>

#include "platform/foundation/Runtime.h"
#include "qt/network/QtNetworkThread.h"
#include "tests/qt/UrlSession.h"
#include "tests/web/LogListener.h"

namespace quorix::testing {
namespace {

constexpr std::size_t kLimit = 256 << 10;  // for a body

/// Compresses to about a third of its size, not to a thousandth.
std::string text(std::size_t size) {
  std::string text;
  for (int line = 0; text.size() < size; ++line) text += std::to_string(line) + '\n';
  return text.substr(0, size);
}

std::string deflated(int status, const std::string& body) {
  const QByteArray packed = qCompress(QByteArray::fromStdString(body)).mid(4);  // drops Qt's length
  return httpAnswer(status, packed.toStdString(), "Content-Encoding: deflate\r\n");
}

TEST_F(ConcurrentUrlSession, AnswersAreAnswersWhateverTheirStatusAndBrokenOnesAreErrors) {
  const struct {
    const char* name;
    Answer answer;
    int status = 0;  // 0 and no body: the request ends with an error
    std::optional<std::string> body = {};
  } table[] = {
      {"found", {httpAnswer(200, kTable)}, 200, kTable},
      {"largest", {httpAnswer(200, std::string(kLimit, 'x'))}, 200, std::string(kLimit, 'x')},
      {"largest, packed", {deflated(200, text(kLimit))}, 200, text(kLimit)},
      {"too large, packed", {deflated(200, text(kLimit + 1))}},
      {"no content", {"HTTP/1.1 204 No Content\r\n\r\n"}, 204},
  };
  std::vector<Fetch> fetches;
  for (std::size_t i = 0; i < std::size(table); ++i) {
    const std::string path = "/a%20b%25.json?x=%26&y=1+" + std::to_string(i);  // sent as it is
    server.serve(path, table[i].answer);
    fetches.emplace_back(server.base() + path + "#fragment");
  }
  for (std::size_t i = 0; i < std::size(table); ++i) {
    SCOPED_TRACE(table[i].name);
    const auto [response, thread] = fetches[i].wait();
    EXPECT_EQ(response.status, table[i].status);
    EXPECT_EQ(response.body, table[i].body);
    EXPECT_EQ(response.error ? response.error->domain : "", table[i].status ? "" : "URLSession");
    EXPECT_NE(thread, std::this_thread::get_id());
  }
  fetch("/");  // a late second completion would arrive before this one
}

TEST_F(ConcurrentUrlSession, EndsAnAnswerThatHasNoEnd) {
  server.serve("/", {"HTTP/1.1 200 OK\r\n\r\n", false, std::string(64 << 10, 'x')});
  EXPECT_EQ(errorOf(server.base() + "/"), QNetworkReply::UnknownContentError);
  std::this_thread::sleep_for(std::chrono::milliseconds(200));
  EXPECT_LT(server.bytesSent(), 8u << 20);  // it sends 64 MB each second
}

TEST_F(ConcurrentUrlSession, EndsARequestThatTakesTooLongNotOneThatWaitedForItsTurn) {
  const foundation::Runtime::Fresh<foundation::URLSession> session;
  const auto impatient = std::make_shared<foundation::NetworkTransport>(
      qt::makeNetworkThread, std::chrono::milliseconds(600));
  impatient->open();
  foundation::URLSession::shared().install(impatient);
  server.serve("/next", {httpAnswer(200, kTable)});
  std::vector<Fetch> slow;
  for (int i = 0; i < 6; ++i) {
    const std::string path = "/" + std::to_string(i);
    const Answer trickle{"HTTP/1.1 200 OK\r\n\r\n", false, "x"};
    server.serve(path, i ? Answer() : trickle);  // the others never answer
    slow.emplace_back(server.base() + path);
  }
  Fetch waiting(server.base() + "/next");
  for (Fetch& fetch : slow) {
    EXPECT_EQ(fetch.error(), QNetworkReply::TimeoutError);
  }
  EXPECT_EQ(waiting.wait().response.body, kTable);
}

TEST_F(ConcurrentUrlSession, LogsRequestsIfAskedAndNeverAToken) {
  server.serve("/here?token=secret", {httpAnswer(200, "four")});
  server.serve("/cut", {"", true});
  const std::string user = "http://secret:secret@" + server.base().substr(7);
  const auto ask = [&] {
    for (const char* path : {"/here?token=secret#secret", "/nowhere", "/cut"}) {
      Fetch(user + path).wait();
    }
  };
  const LogListener log;
  ask();
  const auto noSecret = ::testing::Not(::testing::HasSubstr("secret"));
  EXPECT_THAT(server.requests("/nowhere"), ::testing::ElementsAre(noSecret));
  EXPECT_TRUE(LogListener::lines().isEmpty());
  QLoggingCategory::setFilterRules(QStringLiteral("quorix.network=true"));
  ask();
  QLoggingCategory::setFilterRules({});
  QString lines = LogListener::lines().join('\n');
  lines.replace(QRegularExpression(QStringLiteral("\\d+ ms")), QStringLiteral("T ms"));
  const std::string get = "quorix.network: GET " + server.base();
  EXPECT_EQ(lines.toStdString(), get + "/here 200 T ms 4 bytes\n" + get +
                                     "/nowhere 404 T ms 0 bytes\n" + get +
                                     "/cut RemoteHostClosedError T ms 0 bytes");
}

}  // namespace
}  // namespace quorix::testing
