#include "platform/foundation/HTTPResponseReader.h"

#include <gtest/gtest.h>

namespace quorix::testing {
namespace {

using foundation::HTTPResponseReader;
using State = HTTPResponseReader::State;

State readIn(HTTPResponseReader& reader, const std::string& bytes, std::size_t piece) {
  for (std::size_t at = 0; at < bytes.size(); at += piece) {
    reader.read(std::string_view(bytes).substr(at, piece));
  }
  return reader.readEnd();
}

const std::string kOk = "HTTP/1.1 200 OK\r\n";
const std::string kChunked = kOk + "Transfer-Encoding: chunked\r\n\r\n";

std::string encoded(const char* encoding, const std::string& body) {
  return kOk + "Content-Encoding: " + encoding + "\r\n\r\n" + body;
}

TEST(HTTPResponseReader, ReadsAnswersInPiecesOfAnySize) {
  const std::string gzip(
      "\x1f\x8b\x08\0\0\0\0\0\0\x03\xf3H\xcd\xc9\xc9\x07\0\x82\x89\xd1\xf7\x05\0\0\0", 25);
  const std::string raw("\xf3H\xcd\xc9\xc9\x07\0", 7);
  const struct {
    const char* name;
    std::string bytes;
    State state;
    std::optional<std::string> body = {};
  } table[] = {
      {"length", kOk + "Content-Length: 5\r\n\r\nHello", State::complete, "Hello"},
      {"what follows", kOk + "Content-Length: 5\r\n\r\nHelloHTTP/1.1", State::complete, "Hello"},
      {"until the end", kOk + "\r\nHello", State::complete, "Hello"},
      {"old", "HTTP/1.0 200 OK\r\n\r\nHello", State::complete, "Hello"},
      {"interim", "HTTP/1.1 100 Go\r\n\r\nHTTP/1.1 103 See\r\nLink: x\r\n\r\n" + kOk + "\r\nHello",
       State::complete, "Hello"},
      {"chunks", kChunked + "2;x=y\r\nHe\r\n3\r\nllo\r\n0\r\nX: y\r\n\r\n", State::complete,
       "Hello"},
      {"an extension too long", kChunked + "5;" + std::string(5000, 'x') + "\r\nHello\r\n0\r\n\r\n",
       State::tooLarge},
      {"gzip", encoded("GZIP", gzip), State::complete, "Hello"},
      {"two members", encoded("gzip", gzip + gzip), State::complete, "HelloHello"},
      {"deflate without zlib's header", encoded("deflate", raw), State::complete, "Hello"},
      {"packed, empty", encoded("gzip", ""), State::complete, ""},
      {"a checksum that is wrong", encoded("gzip", gzip.substr(0, 17) + "xxxx" + gzip.substr(21)),
       State::undecodable},
      {"half of it packed", encoded("gzip", gzip.substr(0, 20)), State::undecodable},
      {"unknown encoding", encoded("br", raw), State::undecodable},
      {"nothing", "", State::cutShort},
      {"no last chunk", kChunked + "5\r\nHello\r\n", State::cutShort},
      {"not all trailers", kChunked + "0\r\nX: y\r\n", State::cutShort},
      {"no chunk", kChunked + "Hello\r\n", State::malformed},
      {"two lengths", kOk + "Content-Length: 5\r\nContent-Length: 6\r\n\r\nHello!",
       State::malformed},
      {"too long", kOk + "Content-Length: 38386150820883551\r\n\r\nHello", State::tooLarge},
      {"HTTP/2", "HTTP/2.0 200 OK\r\n\r\n", State::malformed},
  };
  for (const auto& [name, bytes, state, body] : table) {
    for (const std::size_t piece : {bytes.size() + 1, std::size_t{1}, std::size_t{7}}) {
      SCOPED_TRACE(std::string(name) + " in pieces of " + std::to_string(piece));
      HTTPResponseReader reader;
      ASSERT_EQ(readIn(reader, bytes, piece), state);
      if (state != State::complete) continue;
      EXPECT_EQ(reader.status(), 200);
      EXPECT_EQ(reader.body(), body);
    }
  }
}

TEST(HTTPResponseReader, GivesUpWhatHasNoEnd) {
  const std::string line(100, 'x'), chunk = "1;" + line + "\r\nx\r\n";
  const struct {
    const char* name;
    std::string start, filler;
    std::size_t most;
  } table[] = {
      {"status line", "HTTP/1.1 200 ", line, 80 << 10},
      {"headers", kOk, "X: y\r\n", 80 << 10},
      {"interim answers", "", "HTTP/1.1 100 Go\r\n\r\n", 80 << 10},
      {"body", kOk + "\r\n", line, 300 << 10},
      {"length", kOk + "Content-Length: 262145\r\n\r\n", line, 200},
      {"chunk's size", kChunked, "0", 5 << 10},
      {"extensions", kChunked, chunk, 3 << 20},
      {"trailers", kChunked + "0\r\n", "X: y\r\n", 5 << 10},
  };
  for (const auto& [name, start, filler, most] : table) {
    HTTPResponseReader reader;
    State state = reader.read(start);
    std::size_t size = start.size();
    for (; state == State::incomplete && size < 4 << 20; size += filler.size()) {
      state = reader.read(filler);
    }
    EXPECT_EQ(state, State::tooLarge) << name;
    EXPECT_LE(size, most) << name;
  }
}

}  // namespace
}  // namespace quorix::testing
