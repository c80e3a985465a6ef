#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "platform/foundation/Error.h"
#include "platform/foundation/Export.h"
#include "platform/foundation/JSON.h"

namespace quorix {

/// A shopper's return statistics from the widget service.
///
///     const auto reading = UserDetails::decode(answer);
///     if (auto* details = std::get_if<UserDetails>(&reading)) details->returnPercentile;
struct QUORIX_EXPORT UserDetails {
  double returnRate;        ///< A fraction.
  double returnRateTrend;   ///< A fraction, negative when the rate falls.
  double returnPercentile;  ///< 0 to 100; lower means fewer returns.

  /// The members of the JSON object, in the order in which they are read.
  enum class CodingKeys { returnRate, returnPercentile, returnRateTrend };

  static std::string_view stringValue(CodingKeys key);
  /// The key whose name is exactly `text`.
  static std::optional<CodingKeys> codingKey(std::string_view text);
  /// Always absent: the keys have no numbers.
  static std::optional<std::int64_t> intValue(CodingKeys) { return std::nullopt; }
  static std::optional<CodingKeys> codingKey(std::int64_t) { return std::nullopt; }

  using Reading = foundation::Result<UserDetails, foundation::DecodingError>;

  /// Reads the details from the JSON object `bytes`. Fails with the first key that has no number.
  /// Ignores other members. Any thread.
  static Reading decode(std::string_view bytes);
  /// Reads them from the object `container`, which may be any part of a document.
  ///
  ///     foundation::JSONDocument document;
  ///     const auto read = document.parse(answer);
  ///     const auto* whole = std::get_if<foundation::JSONValue>(&read);
  ///     const auto shopper = whole ? whole->member("shopper") : std::nullopt;
  ///     if (shopper) UserDetails::decode(*shopper);
  static Reading decode(const foundation::JSONValue& container);

  bool operator==(const UserDetails&) const = default;
};

}  // namespace quorix
