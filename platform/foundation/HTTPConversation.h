#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/foundation/Export.h"
#include "platform/foundation/HTTPResponseReader.h"
#include "platform/foundation/URLError.h"

namespace quorix::foundation {

/// `scheme` is in lower case.
inline bool isHTTP(std::string_view scheme) { return scheme == "http" || scheme == "https"; }

/// Why a fetch does not follow its `count`th redirect, from an address with the scheme `from` to
/// one with the scheme `to`; absent if it does. It follows 20, to http and https only, and from
/// https only to https.
QUORIX_EXPORT std::optional<URLResponse> refuseRedirect(std::string_view from, std::string_view to,
                                                        int count);

/// A proxy that speaks HTTP.
struct HTTPProxy {
  std::string credentials;  ///< base64 of "user:password"; empty without a user
};

/// One GET on a connection of its own. Does no I/O: each call reports an event of the connection
/// and returns what the connection's owner does next.
///
/// A proxy forwards http requests and opens a tunnel for https. Its credentials are sent to it at
/// once, as Basic, and never to the server.
class QUORIX_EXPORT HTTPConversation {
 public:
  enum class Next {
    read,     ///< wait for bytes
    encrypt,  ///< begin TLS
    end,      ///< close the connection
  };

  struct Step {
    Next next;
    std::string send = {};  ///< bytes to send first
  };

  /// `address` is percent-encoded, with the scheme http or https in lower case and the name of a
  /// server, without a user or a fragment.
  explicit HTTPConversation(std::string address, std::optional<HTTPProxy> proxy = {});
  ~HTTPConversation();

  Step connected();
  Step encrypted();

  /// Takes the next bytes. Only while `isReading`.
  Step read(std::string_view bytes);

  /// The connection closed, failed or could not be made. Closing may be how an answer ends.
  Step failed(URLError error, std::string description);

  bool isReading() const { return reader_.has_value(); }

  // After the end.
  const URLResponse& response() const { return response_; }
  /// The `Location` of a redirect; empty for any other answer and if there is none.
  const std::string& redirect() const { return redirect_; }

 private:
  QUORIX_HIDDEN bool isAskingProxy() const { return proxy_ && !hasTunnel_; }
  QUORIX_HIDDEN std::string proxyCredentials() const;
  QUORIX_HIDDEN Step request();
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
