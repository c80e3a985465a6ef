#include <QLoggingCategory>
#include <QRegularExpression>
#include <atomic>
#include <stdexcept>
#include <thread>

#include "tests/qt/UrlSession.h"
#include "tests/web/LogListener.h"

namespace quorix::testing {
namespace {

using foundation::URL;

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
      {"not found", {httpAnswer(404, kTable)}, 404, kTable},
      {"largest", {httpAnswer(200, std::string(kLimit, 'x'))}, 200, std::string(kLimit, 'x')},
      {"largest, packed", {deflated(200, text(kLimit))}, 200, text(kLimit)},
      {"too large, packed", {deflated(200, text(kLimit + 1))}},
      {"no content", {"HTTP/1.1 204 No Content\r\n\r\n"}, 204},
      {"no HTTP at all", {"SSH-2.0-server\r\n\r\n", SIZE_MAX, true}},
  };
  std::vector<Fetch> fetches;
  for (std::size_t i = 0; i < std::size(table); ++i) {
    const std::string path = "/a%20b%25.json?x=%26&y=1+" + std::to_string(i);  // sent as it is
    server.serve(path, table[i].answer);
    fetches.emplace_back(transport, server.base() + path + "#fragment");
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
  server.serve("/", {"HTTP/1.1 200 OK\r\n\r\n", SIZE_MAX, false, std::string(64 << 10, 'x')});
  EXPECT_EQ(errorOf(server.base() + "/"), QNetworkReply::UnknownContentError);
  std::this_thread::sleep_for(std::chrono::milliseconds(200));
  EXPECT_LT(server.bytesSent(), 8u << 20);  // it sends 64 MB each second
}

TEST_F(ConcurrentUrlSession, EndsARequestThatTakesTooLongNotOneThatWaitedForItsTurn) {
  qt::QtURLTransport impatient{std::chrono::milliseconds(600)};
  server.serve("/next", {httpAnswer(200, kTable)});
  std::vector<Fetch> slow;
  for (int i = 0; i < 6; ++i) {
    const std::string path = "/" + std::to_string(i);
    const Answer trickle{"HTTP/1.1 200 OK\r\n\r\n", 1, false, "x"};
    server.serve(path, i ? Answer() : trickle);  // the others never answer
    slow.emplace_back(impatient, server.base() + path);
  }
  Fetch waiting(impatient, server.base() + "/next");
  for (Fetch& fetch : slow) {
    const auto error = fetch.wait().response.error;
    EXPECT_EQ(error ? error->code : 0, QNetworkReply::TimeoutError);
  }
  EXPECT_EQ(waiting.wait().response.body, kTable);
}

TEST_F(ConcurrentUrlSession, RequestsForOneAddressShareAFetchWhileItLasts) {
  const std::string body(500, 'x');  // half a second: a millisecond for each byte
  server.serve("/list", {httpAnswer(200, body), 1});
  server.serve("/cut", {httpAnswer(200, body).substr(0, 300), 1, true});
  std::atomic<int> asked = 0;
  const auto protocol = foundation::URLSession::shared().registerProtocol([&](const URL&) {
    ++asked;
    return std::nullopt;
  });
  std::vector<Fetch> whole, broken;
  const auto askForBoth = [&] {
    whole.emplace_back(transport, server.base() + "/list");
    broken.emplace_back(transport, server.base() + "/cut");
  };
  for (int row = 1; row < 500; ++row) askForBoth();
  while (server.requests("/list").empty()) std::this_thread::yield();
  askForBoth();  // after the start of the answer
  for (Fetch& fetch : whole) EXPECT_EQ(fetch.wait().response.body, body);
  for (Fetch& fetch : broken) EXPECT_TRUE(fetch.wait().response.error);
  EXPECT_EQ(server.requests("/list").size(), 1u);
  EXPECT_EQ(server.requests("/cut").size(), 1u);
  EXPECT_EQ(asked, 1000);
  EXPECT_EQ(fetch("/list").response.body, body);
  EXPECT_EQ(server.requests("/list").size(), 2u);
}

TEST_F(ConcurrentUrlSession, ProtocolAnswersBeforeTheNetworkOnTheSessionsThread) {
  server.serve("/x", {httpAnswer(200, "network")});
  std::atomic<std::thread::id> ranOn;
  auto token = foundation::URLSession::shared().registerProtocol(
      [&](const URL& url) -> std::optional<foundation::URLResponse> {
        ranOn = std::this_thread::get_id();
        const std::string address = url.absoluteString();
        if (address.ends_with("/exception")) throw std::runtime_error("out of order");
        if (address.ends_with("/number")) throw 1;
        if (!address.ends_with("/inside")) return std::nullopt;
        return foundation::URLResponse{{}, "protocol", 0};
      });
  const auto [inside, thread] = Fetch(transport, server.base() + "/inside").wait();
  EXPECT_EQ(inside.body, "protocol");
  EXPECT_EQ(thread, ranOn.load());
  EXPECT_NE(thread, std::this_thread::get_id());
  const auto [outside, again] = fetch("/x");
  EXPECT_EQ(outside.body, "network");
  EXPECT_EQ(thread, again);  // one thread for all of them
  EXPECT_TRUE(server.requests("/inside").empty());
  for (const char* path : {"/exception", "/number"}) {
    const auto error = fetch(path).response.error;
    ASSERT_TRUE(error) << path;
    EXPECT_EQ(error->code, -2) << path;
  }
}

TEST_F(ConcurrentUrlSession, LogsRequestsIfAskedAndNeverAToken) {
  server.serve("/here?token=secret", {httpAnswer(200, "four")});
  server.serve("/cut", {"", SIZE_MAX, true});
  const std::string user = "http://secret:secret@" + server.base().substr(7);
  const auto ask = [&] {
    for (const char* path : {"/here?token=secret#secret", "/nowhere", "/cut"}) {
      Fetch(transport, user + path).wait();
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
