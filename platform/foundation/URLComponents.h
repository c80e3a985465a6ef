#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/foundation/URL.h"

namespace quorix::foundation {

/// One "name=value" of an address's query, unescaped; without a value it is the bare name.
struct URLQueryItem {
  std::string name;
  std::optional<std::string> value;

  bool operator==(const URLQueryItem&) const = default;
};

/// An address whose query is written item by item.
///
/// Names and values keep letters, digits and -._~!$'()*+,;:@/? as they are; every other byte of
/// their UTF-8 is percent-encoded, the percent sign included. Bytes that are not UTF-8 count as
/// U+FFFD. A plus sign stays one: servers that read it as a blank must be told otherwise. Any
/// thread.
///
///     auto components = URLComponents::parse("https://shop.example/page");
///     components->setQueryItems({{"lang", "en"}, {"debug", std::nullopt}});
///     components->url();  // https://shop.example/page?lang=en&debug
class URLComponents {
 public:
  /// The parts of `text`, or absent when it is no absolute address.
  static std::optional<URLComponents> parse(std::string_view text);

  /// Replaces the whole query. No items leave an empty query, a bare question mark.
  void setQueryItems(const std::vector<URLQueryItem>& items);
  /// Adds an item behind those of the query.
  void appendQueryItem(const URLQueryItem& item);

  /// The address that the parts make.
  std::optional<URL> url() const;

 private:
  std::string address_;               // up to the query
  std::optional<std::string> query_;  // percent-encoded
  std::string fragment_;              // with its "#"
};

}  // namespace quorix::foundation
