#include <gtest/gtest.h>

#include <charconv>

#include "QuorixWidgets/data/UserDetails.h"
#include "Vectors.h"

using quorix::UserDetails;
using quorix::foundation::DecodingError;
using Kind = DecodingError::Kind;
using Keys = UserDetails::CodingKeys;

namespace {

double number(simdjson::dom::element row, std::string_view key) {
  const std::string digits = text(row, key);
  double value = 0;
  std::from_chars(digits.data(), digits.data() + digits.size(), value);
  return value;
}

std::string nameOf(Kind kind) {
  const char* names[] = {"keyNotFound", "typeMismatch", "valueNotFound", "dataCorrupted"};
  return names[static_cast<std::size_t>(kind)];
}

TEST(UserDetails, DecodesAsPhonesDo) {
  forEachRow("users", [](simdjson::dom::element row) {
    const auto reading = UserDetails::decode(text(row, "body"));
    if (const auto* details = std::get_if<UserDetails>(&reading)) {
      EXPECT_EQ(*details, (UserDetails{number(row, "rate"), number(row, "trend"),
                                       number(row, "percentile")}));
    } else {
      const auto& error = std::get<DecodingError>(reading);
      EXPECT_EQ(nameOf(error.kind), text(row, "error"));
      EXPECT_EQ(error.key, text(row, "key"));
    }
  });
}

TEST(UserDetails, TheFirstReadThatFailsIsTheError) {
  const struct {
    std::string_view body;
    Kind kind;
    std::string_view key;
  } rows[] = {
      {R"({"item_return_percentile": "x"})", Kind::keyNotFound, "item_return_rate"},
      {R"({"item_return_rate": true, "item_return_percentile": null})", Kind::typeMismatch,
       "item_return_rate"},
      {R"({"item_return_rate": 1, "item_return_percentile": null})", Kind::valueNotFound,
       "item_return_percentile"},
      {R"({"item_return_rate": 1, "return_rate_trend": {}})", Kind::keyNotFound,
       "item_return_percentile"},
      {R"({"item_return_rate": 1, "item_return_percentile": 2, "return_rate_trend": [3]})",
       Kind::typeMismatch, "return_rate_trend"},
      {"[]", Kind::typeMismatch, ""},
      {" \"x\" ", Kind::typeMismatch, ""},
      {"7", Kind::typeMismatch, ""},
      {"7, 8", Kind::dataCorrupted, ""},
      {"{}]", Kind::dataCorrupted, ""},
      {"", Kind::dataCorrupted, ""},
      {"tru", Kind::dataCorrupted, ""},
  };
  for (const auto& row : rows) {
    const auto reading = UserDetails::decode(row.body);
    const auto* error = std::get_if<DecodingError>(&reading);
    ASSERT_TRUE(error) << row.body;
    EXPECT_EQ(nameOf(error->kind), nameOf(row.kind)) << row.body;
    EXPECT_EQ(error->key, row.key) << row.body;
  }
}

TEST(UserDetails, KeysAreTheirTextsExactly) {
  for (const Keys key : {Keys::returnRate, Keys::returnPercentile, Keys::returnRateTrend}) {
    const std::string name(UserDetails::stringValue(key));
    EXPECT_EQ(UserDetails::codingKey(name), key);
    EXPECT_EQ(UserDetails::codingKey(name + ' '), std::nullopt);
  }
}

}  // namespace
