#include <gtest/gtest.h>

#include "QuorixWidgets/data/UserDetails.h"
#include "Vectors.h"

using quorix::UserDetails;
using quorix::foundation::DecodingError;
using Kind = DecodingError::Kind;
using Keys = UserDetails::CodingKeys;

namespace {

std::string nameOf(Kind kind) {
  const char* names[] = {"keyNotFound", "typeMismatch", "valueNotFound", "dataCorrupted"};
  return names[static_cast<std::size_t>(kind)];
}

void expectReading(simdjson::dom::element row) {
  const auto reading = UserDetails::decode(text(row, "body"));
  if (const auto* details = std::get_if<UserDetails>(&reading)) {
    EXPECT_EQ(*details,
              (UserDetails{number(row, "rate"), number(row, "trend"), number(row, "percentile")}));
  } else {
    const auto& error = std::get<DecodingError>(reading);
    EXPECT_EQ(nameOf(error.kind), text(row, "error"));
    EXPECT_EQ(error.key, text(row, "key"));
  }
}

TEST(UserDetails, DecodesAsPhonesDo) { forEachRow("users", expectReading); }

TEST(UserDetails, TheFirstReadThatFailsIsTheError) { forEachRow("users_own", expectReading); }

TEST(UserDetails, KeysAreTheirTextsExactly) {
  for (const Keys key : {Keys::returnRate, Keys::returnPercentile, Keys::returnRateTrend}) {
    const std::string name(UserDetails::stringValue(key));
    EXPECT_EQ(UserDetails::codingKey(name), key);
    EXPECT_EQ(UserDetails::codingKey(name + ' '), std::nullopt);
  }
}

}  // namespace
