#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/foundation/Export.h"

namespace quorix::foundation {

/// A parsed, valid address. Parsing percent-encodes the characters that are not allowed in their
/// part of an address, as the platform's parser does.
class QUORIX_EXPORT URL {
 public:
  /// Parses `text`; absent if it is no absolute address. Never throws. Any thread.
  static std::optional<URL> parse(std::string_view text);

  const std::string& absoluteString() const { return text_; }
  /// The scheme in lower case, without its colon.
  std::string scheme() const;
  /// The host in lower case; empty if the address has none ("mailto:", "file:///").
  std::string host() const;
  /// "https://host:port" in lower case.
  std::string origin() const;
  /// The path, percent-encoded.
  std::string path() const;

  bool operator==(const URL&) const = default;

 private:
  explicit URL(std::string text) : text_(std::move(text)) {}
  std::string text_;
};

}  // namespace quorix::foundation
