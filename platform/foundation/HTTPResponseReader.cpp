#include "platform/foundation/HTTPResponseReader.h"

#include <algorithm>
#include <boost/beast/http/parser.hpp>
#include <boost/beast/http/string_body.hpp>
#include <utility>

#include "platform/foundation/Inflate.h"

namespace quorix::foundation {
namespace {

namespace http = boost::beast::http;
using ErrorCode = boost::beast::error_code;
using State = HTTPResponseReader::State;

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
  }

  std::string header(http::field name) const {
    const auto value = parser.get()[name];
    return {value.data(), value.size()};
  }

  http::response_parser<http::string_body> parser;
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

// The parser limits a single header, and trailers not at all. It therefore gets no more than
// `headLimit` bytes at a time, and less as headers go by.
State HTTPResponseReader::parse() {
  std::string_view rest = pending_;
  ErrorCode error;
  while (!rest.empty()) {
    auto& parser = message_->parser;
    const bool inHead = !parser.is_header_done();
    // The shortest end of a body in chunks, which the parser takes for granted with an assertion.
    if (!inHead && parser.chunked() && rest.size() < 5) break;
    // Being eager, it would forget that a body is too long and make room for it.
    parser.eager(!inHead);
    const auto most = inHead ? headLimit - headBytes_ : headLimit;
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
