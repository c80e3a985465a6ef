#include "platform/foundation/HTTPConversation.h"

#include <gmock/gmock.h>

namespace quorix::testing {
namespace {

using foundation::HTTPConversation;
using foundation::HTTPProxy;
using foundation::URLError;
using Next = HTTPConversation::Next;
using Proxy = std::optional<HTTPProxy>;
using Texts = std::vector<std::string>;
/// Bytes, before which the connection is there and encrypted, or a failure of it.
using Events = std::vector<std::variant<std::string, URLError>>;

const HTTPProxy kProxy, kLocked{"bWU6"};
const std::string kBasic = "Proxy-Authorization: Basic bWU6\r\n";
const std::string kOpen = "HTTP/1.1 200 OK\r\n\r\n",
                  kTunnel = "HTTP/1.1 200 OK\r\nContent-Length: 9\r\n\r\n";

std::string answer(int status, const std::string& header = "") {
  return "HTTP/1.1 " + std::to_string(status) + " X\r\nContent-Length: 4\r\n" + header + "\r\nbody";
}

std::string get(const std::string& target, const std::string& host, const std::string& last = "") {
  return "GET " + target + " HTTP/1.1\r\nHost: " + host +
         "\r\nUser-Agent: QuorixWidgets\r\nAccept: */*\r\nAccept-Encoding: gzip, deflate\r\n"
         "Connection: close\r\n" +
         last + "\r\n";
}

std::string tunnelTo(const std::string& server, const std::string& last = "") {
  return "CONNECT " + server + " HTTP/1.1\r\nHost: " + server + "\r\n" + last + "\r\n";
}

/// What is sent, "TLS" where that is to begin, and the end: an error's code, or status, body and
/// where to.
Texts converse(const std::string& address, const Proxy& proxy, const Events& events) {
  HTTPConversation conversation(address, proxy);
  Texts texts;
  std::optional<Next> next;
  const auto take = [&](const HTTPConversation::Step& step) {
    next = step.next;
    if (!step.send.empty()) texts.push_back(step.send);
    if (next != Next::encrypt) return;
    EXPECT_FALSE(conversation.isReading());
    texts.push_back("TLS");
  };
  for (const auto& event : events) {
    EXPECT_NE(next, Next::end);
    if (const auto* error = std::get_if<URLError>(&event)) {
      take(conversation.failed(*error, ""));
      continue;
    }
    if (!next) take(conversation.connected());
    if (next == Next::encrypt) take(conversation.encrypted());
    take(conversation.read(std::get<std::string>(event)));
  }
  EXPECT_EQ(next, Next::end);
  const auto& [error, body, status] = conversation.response();
  texts.push_back(error ? "error " + std::to_string(error->code) : std::to_string(status));
  if (body) texts.back() += ' ' + *body;
  if (!conversation.redirect().empty()) texts.back() += " to " + conversation.redirect();
  return texts;
}

TEST(HTTPConversation, AsksTheServerOrItsProxy) {
  const struct {
    std::string address;
    Proxy proxy;
    Events events;
    Texts texts;
  } table[] = {
      {"http://a/b%20?x=%26", {}, {answer(200)}, {get("/b%20?x=%26", "a"), "200 body"}},
      {"http://a:81?x/y", {}, {answer(404)}, {get("/?x/y", "a:81"), "404 body"}},
      {"https://a", {}, {answer(401)}, {"TLS", get("/", "a"), "401 body"}},
      {"http://a?x", kProxy, {answer(200)}, {get("http://a/?x", "a"), "200 body"}},
      {"http://a/b", kLocked, {answer(205)}, {get("http://a/b", "a", kBasic), "205 body"}},
      {"https://a/b",
       kLocked,
       {kTunnel, answer(407)},
       {tunnelTo("a:443", kBasic), "TLS", get("/b", "a"), "407 body"}},
      {"https://[::1]:81/",
       kProxy,
       {kTunnel, answer(200)},
       {tunnelTo("[::1]:81"), "TLS", get("/", "[::1]:81"), "200 body"}},
      {"https://[::1]/",
       kProxy,
       {kTunnel, answer(200)},
       {tunnelTo("[::1]:443"), "TLS", get("/", "[::1]"), "200 body"}},
  };
  for (const auto& [address, proxy, events, texts] : table) {
    EXPECT_EQ(converse(address, proxy, events), texts) << address;
  }
}

TEST(HTTPConversation, EndsWithAnAnswerOrAnError) {
  const std::string half = answer(200).substr(0, 40),
                    endless = kOpen.substr(0, 17) + std::string(1 << 17, 'x');
  const std::string location = "Location: /b\r\n";
  const auto closed = URLError::connectionClosed;
  const struct {
    const char* address;
    Proxy proxy;
    Events events;
    std::string end;
  } table[] = {
      {"http://a", {}, {URLError::connectionRefused}, "error 1"},
      {"http://a", {}, {half, closed}, "error 2"},
      {"http://a", {}, {kOpen, "body", closed}, "200 body"},
      {"http://a", {}, {"SSH-2.0\r\n\r\n"}, "error 399"},
      {"http://a", {}, {answer(200, "Content-Encoding: br\r\n")}, "error 299"},
      {"http://a", {}, {answer(401, "WWW-Authenticate: Basic realm=\"r\"\r\n")}, "401 body"},
      {"http://a", {}, {answer(407)}, "407 body"},
      {"http://a", {}, {answer(301)}, "301 body"},
      {"http://a", {}, {answer(301, location)}, "301 body to /b"},
      {"http://a", {}, {answer(303, location)}, "303 body to /b"},
      {"http://a", {}, {"HTTP/1.1 304 X\r\nContent-Length: 9\r\nLocation: /b\r\n\r\n"}, "304"},
      {"http://a", {}, {answer(305, location)}, "305 body"},
      {"http://a", {}, {answer(307, location)}, "307 body to /b"},
      {"http://a", {}, {answer(308, location)}, "308 body to /b"},
      {"http://a", kProxy, {answer(302, location)}, "302 body to /b"},
      {"http://a", kProxy, {URLError::connectionRefused}, "error 101"},
      {"http://a", kProxy, {half, closed}, "error 102"},
      {"http://a", kProxy, {answer(407)}, "error 105"},
      {"https://a", kProxy, {"", closed}, "error 102"},
      {"https://a", kProxy, {URLError::hostNotFound}, "error 103"},
      {"https://a", kProxy, {"", URLError::timedOut}, "error 104"},
      {"https://a", kProxy, {URLError::unknown}, "error 99"},
      {"https://a", kProxy, {answer(407)}, "error 105"},
      {"https://a", kProxy, {answer(302, location)}, "error 101"},
      {"https://a", kProxy, {endless}, "error 299"},
      {"https://a", kProxy, {kTunnel, URLError::handshakeFailed}, "error 6"},
      {"https://a", kProxy, {kTunnel, closed}, "error 2"},
      {"https://a", kProxy, {kTunnel, "", closed}, "error 2"},
      {"https://a", kProxy, {kTunnel, answer(302, location)}, "302 body to /b"},
  };
  for (std::size_t i = 0; i < std::size(table); ++i) {
    const auto& [address, proxy, events, end] = table[i];
    EXPECT_EQ(converse(address, proxy, events).back(), end) << "row " << i;
  }
}

}  // namespace
}  // namespace quorix::testing
