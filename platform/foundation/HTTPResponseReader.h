#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace quorix::foundation {

/// Reads the answer to one GET from the bytes of its connection. Skips interim answers (1xx),
/// decompresses the body, and ignores bytes after the answer.
///
/// Its memory is bounded for any server: it takes at most `byteLimit` bytes in all, of which the
/// headers may have `headLimit` and the decompressed body `bodyLimit`.
class HTTPResponseReader {
 public:
  enum class State {
    incomplete,   ///< more bytes are expected
    complete,     ///< the answer is whole
    cutShort,     ///< the connection closed before the answer's end
    malformed,    ///< not HTTP/1.0 or 1.1
    tooLarge,     ///< beyond one of the limits
    undecodable,  ///< unknown or broken compression
  };

  static constexpr std::size_t headLimit = 64 * 1024;
  static constexpr std::size_t bodyLimit = 256 * 1024;
  /// A body sent in chunks of one byte takes six times its size.
  static constexpr std::size_t byteLimit = 2 * 1024 * 1024;

  /// The answer to a CONNECT has no body, even if its headers announce one.
  enum class Body { allowed, none };

  explicit HTTPResponseReader(Body body = Body::allowed);
  ~HTTPResponseReader();

  /// Takes the next bytes. A state other than `incomplete` is final.
  State read(std::string_view bytes);

  /// Reports that the connection has closed. Never returns `incomplete`.
  State readEnd();

  // Valid once the state is `complete`.
  int status() const;
  /// The value of `Location`; empty if there is none.
  std::string location() const;
  /// Absent if the answer cannot have one: with the status 204 or 304, or after a CONNECT.
  const std::optional<std::string>& body() const;

 private:
  struct Message;

  State parse();
  State parsed();

  const Body allowed_;
  std::unique_ptr<Message> message_;
  State state_ = State::incomplete;
  std::string pending_;        // not yet parsed
  std::size_t headBytes_ = 0;  // parsed, interim answers included
  std::size_t bytes_ = 0;      // in all
};

}  // namespace quorix::foundation
