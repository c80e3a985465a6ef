#include "platform/foundation/HTTPConversation.h"
#include "tests/core/Vectors.h"

namespace quorix::testing {
namespace {

using foundation::HTTPConversation;
using foundation::HTTPResponseReader;
using Next = HTTPConversation::Next;
using State = HTTPResponseReader::State;
using Texts = std::vector<std::string>;

TEST(HTTPResponseReader, ReadsAnswersInPiecesOfAnySize) {
  forEachRow("http/answers", [](simdjson::dom::element row) {
    const char* const names[] = {"incomplete", "complete", "cutShort",
                                 "malformed",  "tooLarge", "undecodable"};
    const std::string bytes = withBytes(::text(row, "bytes")), expected = ::text(row, "state");
    for (const std::size_t piece : {bytes.size() + 1, std::size_t{1}, std::size_t{7}}) {
      HTTPResponseReader reader;
      for (std::size_t at = 0; at < bytes.size(); at += piece) {
        reader.read(std::string_view(bytes).substr(at, piece));
      }
      ASSERT_EQ(names[static_cast<int>(reader.readEnd())], expected) << piece;
      if (expected != "complete") continue;
      EXPECT_EQ(reader.status(), 200);
      EXPECT_EQ(reader.body(), ::text(row, "body")) << piece;
    }
  });
}

TEST(HTTPResponseReader, GivesUpWhatHasNoEnd) {
  forEachRow("http/endless", [](simdjson::dom::element row) {
    const std::string start = ::text(row, "start"), filler = ::text(row, "filler");
    HTTPResponseReader reader;
    State state = reader.read(start);
    std::size_t size = start.size();
    for (; state == State::incomplete && size < 4 << 20; size += filler.size()) {
      state = reader.read(filler);
    }
    EXPECT_EQ(state, State::tooLarge);
    EXPECT_LE(size, std::uint64_t(row["most"]));
  });
}

/// A conversation in which the server sends the events: bytes, before which the connection is there
/// and encrypted, or the code of an error. Returns what is sent, "TLS" where that is to begin, and
/// the end: an error's code, or status, body and where to.
Texts converse(simdjson::dom::element row) {
  std::optional<foundation::HTTPProxy> proxy;
  if (!row["proxy"].is_null()) proxy = {::text(row, "proxy")};
  HTTPConversation conversation(::text(row, "address"), proxy);
  Texts texts;
  std::optional<Next> next;
  const auto take = [&](const HTTPConversation::Step& step) {
    next = step.next;
    if (!step.send.empty()) texts.push_back(step.send);
    if (next != Next::encrypt) return;
    EXPECT_FALSE(conversation.isReading());
    texts.push_back("TLS");
  };
  for (const simdjson::dom::element event : row["events"]) {
    EXPECT_NE(next, Next::end);
    if (event.is_int64()) {
      take(conversation.failed(foundation::URLError{std::int64_t(event)}, ""));
      continue;
    }
    if (!next) take(conversation.connected());
    if (next == Next::encrypt) take(conversation.encrypted());
    take(conversation.read(withBytes(std::string(std::string_view(event)))));
  }
  EXPECT_EQ(next, Next::end);
  const auto& [error, body, status] = conversation.response();
  texts.push_back(error ? "error " + std::to_string(error->code) : std::to_string(status));
  if (body) texts.back() += ' ' + *body;
  if (!conversation.redirect().empty()) texts.back() += " to " + conversation.redirect();
  return texts;
}

TEST(HTTPConversation, AsksTheServerOrItsProxyAndEndsWithAnAnswerOrAnError) {
  forEachRow("http/conversations", [](simdjson::dom::element row) {
    Texts texts = converse(row);
    EXPECT_EQ(texts.back(), ::text(row, "end"));
    simdjson::dom::array sends;
    if (row["sends"].get(sends) != simdjson::SUCCESS) return;
    texts.pop_back();
    EXPECT_EQ(texts, ::texts(sends));
  });
}

TEST(HTTPConversation, RedirectsStayWithHTTPAndLeaveNoSecureConnection) {
  forEachRow("http/redirects", [](simdjson::dom::element row) {
    const auto refusal = foundation::refuseRedirect(::text(row, "from"), ::text(row, "to"),
                                                    int(std::int64_t(row["count"])));
    EXPECT_EQ(refusal ? refusal->error->code : 0, std::int64_t(row["error"]));
  });
}

}  // namespace
}  // namespace quorix::testing
