#include "QuorixWidgets/data/TokenData.h"

#include <utility>

#include "platform/foundation/Base64.h"
#include "platform/foundation/JSON.h"
#include "platform/foundation/UnicodeText.h"

namespace quorix {
namespace {

/// Bytes. A document keeps the memory of the largest text that it has read. The document that each
/// thread reuses therefore reads payloads up to this size only.
constexpr std::size_t largestReusedPayload = 16384;

std::optional<std::string> decodePayload(std::string_view piece) {
  std::string text(piece);
  // Counting bytes is enough: a payload with multi-byte characters is not valid base64 anyway.
  if (const std::size_t rest = text.size() % 4; rest != 0) text.append(4 - rest, '=');
  return foundation::decodeBase64(std::move(text));
}

TokenReading readFigures(const foundation::JSONValue& data) {
  const auto read = [&](std::string_view key, auto get) -> decltype((data.*get)()) {
    const auto member = data.member(key);
    return member ? ((*member).*get)() : std::nullopt;
  };
  using foundation::JSONValue;
  const auto score = read("score", &JSONValue::number);
  if (!score) return TokenRefusal::noScore;
  const auto currency = read("fee_currency", &JSONValue::string);
  if (!currency) return TokenRefusal::noCurrency;
  const auto baseFee = read("base_fee_amount", &JSONValue::integer);
  if (!baseFee) return TokenRefusal::noBaseFee;
  const auto discountedFee = read("discounted_fee_amount", &JSONValue::integer);
  if (!discountedFee) return TokenRefusal::noDiscountedFee;
  return TokenData{*score, std::string(*currency), *baseFee, *discountedFee};
}

TokenReading readPayload(std::string_view payload, foundation::JSONDocument& document) {
  using foundation::JSONValue;
  const auto result = document.parse(payload);
  const auto* top = std::get_if<JSONValue>(&result);
  if (!top) return TokenRefusal::notJSON;
  if (top->kind() != JSONValue::Kind::object) return TokenRefusal::notAnObject;
  const auto data = top->member("data");
  if (!data || data->kind() != JSONValue::Kind::object) return TokenRefusal::noData;
  return readFigures(*data);
}

}  // namespace

std::string_view describe(TokenRefusal refusal) {
  switch (refusal) {
    case TokenRefusal::tooLong:
      return "the token is over 64 kB";
    case TokenRefusal::noPayload:
      return "the token has fewer than two pieces";
    case TokenRefusal::notBase64:
      return "the payload is not base64";
    case TokenRefusal::notJSON:
      return "the payload is not a JSON document";
    case TokenRefusal::notAnObject:
      return "the document is not an object";
    case TokenRefusal::noData:
      return "\"data\" is missing or not an object";
    case TokenRefusal::noScore:
      return "\"score\" is missing or not a number";
    case TokenRefusal::noCurrency:
      return "\"fee_currency\" is missing or not a text";
    case TokenRefusal::noBaseFee:
      return "\"base_fee_amount\" is missing or not a 64-bit integer";
    case TokenRefusal::noDiscountedFee:
      return "\"discounted_fee_amount\" is missing or not a 64-bit integer";
  }
  return {};
}

TokenReading readToken(std::string_view token) noexcept {
  if (token.size() > longestToken) return TokenRefusal::tooLong;
  auto pieces = foundation::components(token, ".");
  std::erase(pieces, "");
  if (pieces.size() < 2) return TokenRefusal::noPayload;
  const auto payload = decodePayload(pieces[1]);
  if (!payload) return TokenRefusal::notBase64;
  if (payload->size() > largestReusedPayload) {
    foundation::JSONDocument document;
    return readPayload(*payload, document);
  }
  thread_local foundation::JSONDocument document;
  return readPayload(*payload, document);
}

std::optional<TokenData> parseTokenData(std::string_view token) noexcept {
  TokenReading reading = readToken(token);
  if (auto* data = std::get_if<TokenData>(&reading)) return std::move(*data);
  return std::nullopt;
}

}  // namespace quorix
