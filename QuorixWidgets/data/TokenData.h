#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "platform/foundation/Export.h"

namespace quorix {

/// The figures in a shopper token.
struct TokenData {
  double score;                       ///< A fraction; 1 - score is the return rate.
  std::string currency;               ///< Of both fees. Not checked.
  std::int64_t returnsFee;            ///< Hundredths of the currency unit.
  std::int64_t discountedReturnsFee;  ///< Hundredths of the currency unit.

  bool operator==(const TokenData&) const = default;
};

/// Bytes. Issued tokens have a few hundred. A longer token is refused without being read.
inline constexpr std::size_t longestToken = 65536;

/// The step at which a token was refused, in the order of the steps.
enum class TokenRefusal {
  tooLong,
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

/// The reason in words: "the payload is not base64".
QUORIX_EXPORT std::string_view describe(TokenRefusal refusal);

using TokenReading = std::variant<TokenData, TokenRefusal>;

/// Reads the figures from the token's payload, its second piece. Does not check header and
/// signature. Any thread.
QUORIX_EXPORT TokenReading readToken(std::string_view token) noexcept;

/// The figures of `token`; absent if `readToken` refuses it. Any thread.
QUORIX_EXPORT std::optional<TokenData> parseTokenData(std::string_view token) noexcept;

}  // namespace quorix
