#include "platform/foundation/HTTPConversation.h"

#include <algorithm>
#include <cstdint>
#include <utility>

namespace quorix::foundation {
namespace {

using State = HTTPResponseReader::State;
using Step = HTTPConversation::Step;

bool isRedirect(int status) {
  return status == 301 || status == 302 || status == 303 || status == 307 || status == 308;
}

}  // namespace

std::optional<URLResponse> refuseRedirect(std::string_view from, std::string_view to, int count) {
  constexpr int most = 20;
  if (count > most) return failure(URLError::tooManyRedirects, "too many redirects");
  if (!isHTTP(to)) {
    return failure(URLError::unsupportedScheme, "the redirect leads to neither http nor https");
  }
  if (from == "https" && to != "https") {
    return failure(URLError::insecureRedirect, "the redirect leads from https to http");
  }
  return std::nullopt;
}

HTTPConversation::HTTPConversation(std::string address, std::optional<HTTPProxy> proxy)
    : address_(std::move(address)),
      secure_(address_.starts_with("https:")),
      proxy_(std::move(proxy)) {
  const auto start = address_.find("//") + 2;
  const auto end = std::min(address_.find_first_of("/?", start), address_.size());
  if (address_[end] != '/') address_.insert(end, "/");
  authority_ = address_.substr(start, end - start);
  path_ = address_.substr(end);
}

HTTPConversation::~HTTPConversation() = default;

std::string HTTPConversation::proxyCredentials() const {
  if (!isAskingProxy() || proxy_->credentials.empty()) return {};
  return "Proxy-Authorization: Basic " + proxy_->credentials + "\r\n";
}

Step HTTPConversation::connected() {
  if (!secure_) return request();
  if (!proxy_) return {Next::encrypt};
  reader_.emplace(HTTPResponseReader::Body::none);
  const bool namesPort = authority_.find(':', authority_.find(']') + 1) != std::string::npos;
  const std::string server = authority_ + (namesPort ? "" : ":443");
  return {Next::read, "CONNECT " + server + " HTTP/1.1\r\nHost: " + server + "\r\n" +
                          proxyCredentials() + "\r\n"};
}

Step HTTPConversation::encrypted() { return request(); }

Step HTTPConversation::request() {
  reader_.emplace();
  return {Next::read, "GET " + (isAskingProxy() ? address_ : path_) +
                          " HTTP/1.1\r\nHost: " + authority_ +
                          "\r\nUser-Agent: QuorixWidgets\r\nAccept: */*\r\n"
                          "Accept-Encoding: gzip, deflate\r\nConnection: close\r\n" +
                          proxyCredentials() + "\r\n"};
}

Step HTTPConversation::read(std::string_view bytes) { return advance(reader_->read(bytes)); }

Step HTTPConversation::failed(URLError error, std::string description) {
  if (error == URLError::connectionClosed && reader_) return advance(reader_->readEnd());
  return fail(error, std::move(description));
}

Step HTTPConversation::advance(State state) {
  switch (state) {
    case State::incomplete:
      return {Next::read};
    case State::complete:
      return answered();
    case State::cutShort:
      return fail(URLError::connectionClosed, "the connection closed");
    case State::malformed:
      return fail(URLError::malformedAnswer, "the answer is no valid HTTP");
    case State::tooLarge:
      return fail(URLError::badContent, "the answer is too large");
    case State::undecodable:
      break;
  }
  return fail(URLError::badContent, "the answer's compression is unknown or broken");
}

Step HTTPConversation::answered() {
  const int status = reader_->status();
  if (isAskingProxy() && status == 407) {
    return fail(URLError::proxyAuthenticationRequired, "the proxy asks for credentials");
  }
  if (!isAskingProxy() || !secure_) {
    response_ = {{}, reader_->body(), status};
    if (isRedirect(status)) redirect_ = reader_->location();
    return {Next::end};
  }
  if (status / 100 != 2) {
    return fail(URLError::proxyConnectionRefused,
                "the proxy opens no tunnel: status " + std::to_string(status));
  }
  hasTunnel_ = true;
  reader_.reset();
  return {Next::encrypt};
}

Step HTTPConversation::fail(URLError error, std::string description) {
  constexpr int ofProxy = 100;  // between the codes of a server and those of a proxy
  if (isAskingProxy() && error <= URLError::timedOut) {
    error = URLError{static_cast<std::int64_t>(error) + ofProxy};
  }
  response_ = failure(error, std::move(description));
  return {Next::end};
}

}  // namespace quorix::foundation
