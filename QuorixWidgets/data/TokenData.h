#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "platform/foundation/Export.h"

namespace quorix {

/// The figures that a shopper token carries.
struct TokenData {
  double score;                       ///< A fraction; 1 - score is the return rate.
  std::string currency;               ///< Of both fees; as sent, never checked.
  std::int64_t returnsFee;            ///< Hundredths of the currency unit.
  std::int64_t discountedReturnsFee;  ///< Hundredths of the currency unit.

  bool operator==(const TokenData&) const = default;
};

/// The step at which a token was refused, in the order in which the steps are taken.
enum class TokenRefusal {
  noPayload,
  notBase64,
  notJSON,
  notAnObject,
  noData,
  noScore,
  noCurrency,
  noBaseFee,
  noDiscountedFee,
};

/// What is wrong, in plain words: "the payload is not base64".
QUORIX_EXPORT std::string_view describe(TokenRefusal refusal);

using TokenReading = std::variant<TokenData, TokenRefusal>;

/// Reads the figures from the token's payload, its second piece; header and signature are not
/// looked at. Any thread.
QUORIX_EXPORT TokenReading readToken(std::string_view token) noexcept;

/// The figures of `token`, or nothing when it carries none. Any thread.
QUORIX_EXPORT std::optional<TokenData> parseTokenData(std::string_view token) noexcept;

}  // namespace quorix
