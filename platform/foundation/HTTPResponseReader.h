#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace quorix::foundation {

/// Reads the answer to one GET from the bytes of its connection. Interim answers (1xx) are skipped,
/// a compressed body is unpacked, what follows the answer is ignored.
///
/// Bounded for any server: no more than `byteLimit` bytes are taken in all, of which the headers
/// may have `headLimit` and the body `bodyLimit`, unpacked.
class HTTPResponseReader {
 public:
  enum class State {
    incomplete,   ///< more bytes are expected
    complete,     ///< the answer is whole
    cutShort,     ///< the connection closed before the answer's end
    malformed,    ///< not HTTP/1.0 or 1.1
    tooLarge,     ///< beyond one of the limits
    undecodable,  ///< compressed in an unknown way, or broken
  };

  static constexpr std::size_t headLimit = 64 * 1024;
  static constexpr std::size_t bodyLimit = 256 * 1024;
  /// A body in chunks of one byte takes six times its size.
  static constexpr std::size_t byteLimit = 2 * 1024 * 1024;

  /// The answer to a CONNECT has no body, even if its headers announce one.
  enum class Body { allowed, none };

  explicit HTTPResponseReader(Body body = Body::allowed);
  ~HTTPResponseReader();

  /// Takes the next bytes. Once the state is another than `incomplete`, it stays.
  State read(std::string_view bytes);

  /// The connection has closed. Never returns `incomplete`.
  State readEnd();

  // Of a complete answer.
  int status() const;
  /// The value of `Location`; empty if there is none.
  std::string location() const;
  /// Absent with the status 204 or 304, and after a CONNECT.
  const std::optional<std::string>& body() const;

 private:
  struct Message;

  State parse();
  State parsed();

  const Body allowed_;
  std::unique_ptr<Message> message_;
  State state_ = State::incomplete;
  std::string pending_;        // not parsed yet
  std::size_t headBytes_ = 0;  // parsed, interim answers included
  std::size_t bytes_ = 0;      // in all
};

}  // namespace quorix::foundation
