#include "QuorixWidgets/data/UserDetails.h"

#include <array>
#include <string>

namespace quorix {

using foundation::DecodingError;
using foundation::JSONValue;
using Kind = DecodingError::Kind;

namespace {

using Keys = UserDetails::CodingKeys;
constexpr std::array allKeys{Keys::returnRate, Keys::returnPercentile, Keys::returnRateTrend};

foundation::Result<double, DecodingError> readNumber(const JSONValue& object, Keys key) {
  const std::string_view name = UserDetails::stringValue(key);
  const auto failure = [&](Kind kind) { return DecodingError{kind, std::string(name)}; };
  const auto member = object.member(name);
  if (!member) return failure(Kind::keyNotFound);
  if (member->kind() == JSONValue::Kind::null) return failure(Kind::valueNotFound);
  // `number` also accepts true and false, which are refused here.
  if (member->kind() != JSONValue::Kind::number) return failure(Kind::typeMismatch);
  return *member->number();
}

/// Whether `bytes` are a valid JSON value outside an object or array, which a document refuses.
bool isBareValue(std::string_view bytes, foundation::JSONDocument& document) {
  const auto wrapped = document.parse('[' + std::string(bytes) + ']');
  const auto* array = std::get_if<JSONValue>(&wrapped);
  return array && array->elements().size() == 1;
}

}  // namespace

std::string_view UserDetails::stringValue(CodingKeys key) {
  switch (key) {
    case CodingKeys::returnRate:
      return "item_return_rate";
    case CodingKeys::returnPercentile:
      return "item_return_percentile";
    case CodingKeys::returnRateTrend:
      return "return_rate_trend";
  }
  return {};
}

std::optional<UserDetails::CodingKeys> UserDetails::codingKey(std::string_view text) {
  for (const CodingKeys key : allKeys) {
    if (stringValue(key) == text) return key;
  }
  return std::nullopt;
}

UserDetails::Reading UserDetails::decode(const JSONValue& container) {
  if (container.kind() != JSONValue::Kind::object) return DecodingError{Kind::typeMismatch, {}};
  std::array<double, allKeys.size()> numbers{};
  for (std::size_t i = 0; i < allKeys.size(); ++i) {
    auto read = readNumber(container, allKeys[i]);
    if (auto* error = std::get_if<DecodingError>(&read)) return std::move(*error);
    numbers[i] = std::get<double>(read);
  }
  const auto [rate, percentile, trend] = numbers;
  return UserDetails{.returnRate = rate, .returnRateTrend = trend, .returnPercentile = percentile};
}

UserDetails::Reading UserDetails::decode(std::string_view bytes) {
  foundation::JSONDocument document;
  const auto result = document.parse(bytes);
  if (const auto* top = std::get_if<JSONValue>(&result)) return decode(*top);
  const bool bare = isBareValue(bytes, document);
  return DecodingError{bare ? Kind::typeMismatch : Kind::dataCorrupted, {}};
}

}  // namespace quorix
