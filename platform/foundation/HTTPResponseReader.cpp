#include "platform/foundation/HTTPResponseReader.h"

#include <zlib.h>

#include <boost/beast/core/string.hpp>
#include <boost/beast/http/parser.hpp>
#include <boost/beast/http/string_body.hpp>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace quorix::foundation {
namespace {

// Values of zlib's "window bits".
constexpr int kZlib = MAX_WBITS, kGzip = MAX_WBITS + 16, kRaw = -MAX_WBITS;

std::optional<std::string> unpacked(std::string& packed, int format, std::size_t limit) {
  z_stream stream{};
  if (inflateInit2(&stream, format) != Z_OK) return std::nullopt;
  std::string plain(limit + 1, '\0');
  stream.next_in = reinterpret_cast<Bytef*>(packed.data());
  stream.avail_in = static_cast<uInt>(packed.size());
  stream.next_out = reinterpret_cast<Bytef*>(plain.data());
  stream.avail_out = static_cast<uInt>(plain.size());
  int result = inflate(&stream, Z_FINISH);
  while (result == Z_STREAM_END && format == kGzip && stream.avail_in > 0 && stream.avail_out > 0) {
    inflateReset(&stream);
    result = inflate(&stream, Z_FINISH);
  }
  inflateEnd(&stream);
  if (result != Z_STREAM_END && stream.avail_out > 0) return std::nullopt;
  plain.resize(plain.size() - stream.avail_out);
  return plain;
}

/// Unpacks the body of an answer whose `Content-Encoding` is `encoding`: gzip (also of several
/// members), deflate (also without zlib's header), identity or none. Absent if the encoding is
/// another or the data is broken or incomplete. Stops after `limit` + 1 bytes.
std::optional<std::string> inflated(std::string packed, const std::string& encoding,
                                    std::size_t limit) {
  const auto is = [&](const char* name) { return boost::beast::iequals(encoding, name); };
  if (packed.empty() || is("") || is("identity")) return packed;
  if (is("gzip") || is("x-gzip")) return unpacked(packed, kGzip, limit);
  if (!is("deflate")) return std::nullopt;
  // Some servers leave out zlib's header and checksum.
  auto plain = unpacked(packed, kZlib, limit);
  return plain ? plain : unpacked(packed, kRaw, limit);
}

namespace http = boost::beast::http;
using ErrorCode = boost::beast::error_code;
using State = HTTPResponseReader::State;

/// Limits a chunk's size and extensions, and the trailers. Newer parsers also limit a chunk's
/// extensions themselves, to between this and twice as much, depending on how the bytes are split.
constexpr std::size_t chunkHeadLimit = 4096;

State stateFor(const ErrorCode& error) {
  if (!error || error == http::error::need_more) return State::incomplete;
  if (error == http::error::body_limit || error == http::error::header_limit) {
    return State::tooLarge;
  }
  return State::malformed;
}

}  // namespace

struct HTTPResponseReader::Message {
  explicit Message(Body allowed) {
    parser.skip(allowed == Body::none);
    parser.header_limit(headLimit);
    parser.body_limit(bodyLimit);
    parser.on_chunk_header(onChunk);
  }

  std::string header(http::field name) const {
    const auto value = parser.get()[name];
    return {value.data(), value.size()};
  }

  http::response_parser<http::string_body> parser;
  /// Set once the parser has taken the last chunk and waits for trailers. Older parsers take both
  /// at once.
  bool inTrailers = false;
  std::function<void(std::uint64_t, boost::beast::string_view, ErrorCode&)> onChunk =
      [this](std::uint64_t size, auto, auto&) {
        if (size > 0) return;
        inTrailers = true;
        parser.header_limit(chunkHeadLimit);
      };
  std::optional<std::string> body;
};

HTTPResponseReader::HTTPResponseReader(Body body)
    : allowed_(body), message_(std::make_unique<Message>(body)) {}
HTTPResponseReader::~HTTPResponseReader() = default;

State HTTPResponseReader::read(std::string_view bytes) {
  if (state_ != State::incomplete) return state_;
  bytes_ += bytes.size();
  pending_ += bytes;
  state_ = parse();
  if (state_ == State::incomplete && bytes_ > byteLimit) state_ = State::tooLarge;
  return state_;
}

State HTTPResponseReader::readEnd() {
  if (state_ != State::incomplete) return state_;
  ErrorCode error = http::error::partial_message;
  if (message_->parser.got_some()) message_->parser.put_eof(error);
  return state_ = error ? State::cutShort : parsed();
}

// The parser limits only single headers, and trailers not at all. So it gets at most `headLimit`
// bytes at a time, less the header bytes that it has already taken.
State HTTPResponseReader::parse() {
  std::string_view rest = pending_;
  ErrorCode error;
  while (!rest.empty()) {
    auto& parser = message_->parser;
    const bool inHead = !parser.is_header_done();
    const bool inChunks = !inHead && parser.chunked() && !message_->inTrailers;
    // Older parsers assert that the buffer can hold the shortest last chunk.
    if (inChunks && rest.size() < 5) break;
    // In eager mode the parser ignores the body limit while it reads the head, and reserves memory
    // for any announced length.
    parser.eager(!inHead);
    const auto most = inHead ? headLimit - headBytes_ : inChunks ? chunkHeadLimit : headLimit;
    const auto window = rest.substr(0, most);
    const auto taken = parser.put(boost::asio::buffer(window.data(), window.size()), error);
    rest.remove_prefix(taken);
    if (!parser.is_header_done() || parser.get().result_int() / 100 == 1) headBytes_ += taken;
    if (error && error != http::error::need_more) return stateFor(error);
    if (parser.is_done()) {
      if (parser.get().result_int() / 100 != 1) return parsed();
      message_ = std::make_unique<Message>(allowed_);
    }
    if (headBytes_ >= headLimit) return State::tooLarge;
    if (taken > 0) continue;
    if (window.size() == most) return State::tooLarge;
    break;
  }
  pending_.erase(0, pending_.size() - rest.size());
  return State::incomplete;
}

State HTTPResponseReader::parsed() {
  if (allowed_ == Body::none || status() == 204 || status() == 304) return State::complete;
  message_->body = inflated(std::move(message_->parser.get().body()),
                            message_->header(http::field::content_encoding), bodyLimit);
  if (!message_->body) return State::undecodable;
  return message_->body->size() > bodyLimit ? State::tooLarge : State::complete;
}

int HTTPResponseReader::status() const {
  return static_cast<int>(message_->parser.get().result_int());
}

std::string HTTPResponseReader::location() const { return message_->header(http::field::location); }

const std::optional<std::string>& HTTPResponseReader::body() const { return message_->body; }

}  // namespace quorix::foundation
