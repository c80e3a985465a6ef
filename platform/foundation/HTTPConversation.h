#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/foundation/Export.h"
#include "platform/foundation/HTTPResponseReader.h"
#include "platform/foundation/URLError.h"

namespace quorix::foundation {

/// A proxy that is asked in HTTP.
struct HTTPProxy {
  std::string credentials;  ///< base64 of "user:password"; empty without a user
};

/// One GET on a connection of its own. Does no I/O: each call reports an event of the connection
/// and returns what the owner of the connection does next.
///
/// A proxy forwards a request for http and opens a tunnel to a server of https. It gets its
/// credentials at once, as Basic; the server never gets them.
class QUORIX_EXPORT HTTPConversation {
 public:
  enum class Next {
    read,     ///< wait for bytes
    encrypt,  ///< begin TLS
    end,      ///< close the connection
  };

  struct Step {
    Next next;
    std::string send = {};  ///< before anything else
  };

  /// `address` is percent-encoded, with the scheme http or https in lower case and without a user
  /// or a fragment.
  explicit HTTPConversation(std::string address, std::optional<HTTPProxy> proxy = {});

  Step connected();
  Step encrypted();

  /// Takes the next bytes, of which there must be none while `isReading` is false.
  Step read(std::string_view bytes) { return advance(reader_->read(bytes)); }

  /// The connection closed, failed or could not be made. An answer may end with its connection.
  Step failed(URLError error, std::string description);

  bool isReading() const { return reader_.has_value(); }

  // After the end.
  const URLResponse& response() const { return response_; }
  /// The `Location` of a redirect; empty for any other answer and if there is none.
  const std::string& redirect() const { return redirect_; }

 private:
  QUORIX_HIDDEN bool isAskingProxy() const { return proxy_ && !hasTunnel_; }
  QUORIX_HIDDEN std::string proxyCredentials() const;
  QUORIX_HIDDEN Step advance(HTTPResponseReader::State state);
  QUORIX_HIDDEN Step answered();
  QUORIX_HIDDEN Step fail(URLError error, std::string description);

  std::string address_, authority_, path_;
  const bool secure_;
  const std::optional<HTTPProxy> proxy_;
  bool hasTunnel_ = false;
  std::optional<HTTPResponseReader> reader_;  // while an answer is expected
  URLResponse response_;
  std::string redirect_;
};

}  // namespace quorix::foundation
