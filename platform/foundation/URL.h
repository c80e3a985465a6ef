#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

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

/// One "name=value" of an address's query, unescaped. Without a value only the name is written.
struct URLQueryItem {
  std::string name;
  std::optional<std::string> value;

  bool operator==(const URLQueryItem&) const = default;
};

/// An address with a query that is written item by item.
///
/// Letters, digits and -._~!$'()*+,;:@/? in names and values stay unchanged. Every other byte of
/// their UTF-8 is percent-encoded, the percent sign included. Bytes that are not UTF-8 count as
/// U+FFFD. A plus sign is not encoded, although some servers read it as a blank. Any thread.
///
///     auto components = URLComponents::parse("https://shop.example/page");
///     components->setQueryItems({{"lang", "en"}, {"debug", std::nullopt}});
///     components->url();  // https://shop.example/page?lang=en&debug
class QUORIX_EXPORT URLComponents {
 public:
  /// The parts of `text`; absent if it is not an absolute address.
  static std::optional<URLComponents> parse(std::string_view text);

  /// Replaces the whole query. An empty list leaves an empty query: a question mark.
  void setQueryItems(const std::vector<URLQueryItem>& items);
  /// Appends an item to the query.
  void appendQueryItem(const URLQueryItem& item);

  /// The address that the parts make.
  std::optional<URL> url() const;

 private:
  std::string address_;               // up to the query
  std::optional<std::string> query_;  // percent-encoded
  std::string fragment_;              // with its "#"
};

/// An address to load, with a cache policy and a time-out.
///
///     URLRequest request{*URL::parse("https://shop.example/page")};
struct URLRequest {
  /// Which caches may answer instead of the server. The values are the platform's.
  enum class CachePolicy {
    useProtocolCachePolicy = 0,  ///< What HTTP allows.
  };

  using Seconds = std::chrono::duration<double>;
  /// Also the time limit of a whole request of the HTTP session.
  static constexpr std::chrono::seconds defaultTimeout{60};

  URL url;
  CachePolicy cachePolicy = CachePolicy::useProtocolCachePolicy;
  Seconds timeoutInterval = defaultTimeout;  ///< Longest time without a byte.
};

}  // namespace quorix::foundation
