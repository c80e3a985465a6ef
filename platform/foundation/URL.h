#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/foundation/Export.h"

namespace quorix::foundation {

/// A parsed address. Made only from a text that parses; characters that may not stand in their part
/// of an address are percent-encoded on the way in, as the platform's parser does.
class QUORIX_EXPORT URL {
 public:
  /// The address that `text` spells, or nothing. Never throws. Any thread.
  static std::optional<URL> parse(std::string_view text);

  const std::string& absoluteString() const { return text_; }
  /// The scheme in lower case, without its colon.
  std::string scheme() const;
  /// The host in lower case; empty where the address has none ("mailto:", "file:///").
  std::string host() const;
  /// "https://host:port" in lower case: what an answer in process is registered for.
  std::string origin() const;
  /// The path as it stands in the address, percent-encoded.
  std::string path() const;

  bool operator==(const URL&) const = default;

 private:
  explicit URL(std::string text) : text_(std::move(text)) {}
  std::string text_;
};

}  // namespace quorix::foundation
