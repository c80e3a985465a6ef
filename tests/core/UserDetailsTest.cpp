#include <gtest/gtest.h>

#include "QuorixWidgets/data/UserDetails.h"
#include "Vectors.h"

using quorix::UserDetails;
using quorix::foundation::DecodingError;
namespace foundation = quorix::foundation;
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

TEST(UserDetails, DecodesFromARecordInsideADocument) {
  foundation::JSONDocument document;
  const auto read = document.parse(
      R"({"shoppers": [7, {"item_return_rate": 0.2, "item_return_percentile": 35,
                           "return_rate_trend": -0.05}], "item_return_rate": 1})");
  const auto& top = std::get<foundation::JSONValue>(read);
  const auto shoppers = top.member("shoppers")->elements();
  EXPECT_EQ(std::get<UserDetails>(UserDetails::decode(shoppers[1])), (UserDetails{0.2, -0.05, 35}));
  EXPECT_EQ(std::get<DecodingError>(UserDetails::decode(shoppers[0])),
            (DecodingError{Kind::typeMismatch, ""}));
  EXPECT_EQ(std::get<DecodingError>(UserDetails::decode(top)),
            (DecodingError{Kind::keyNotFound, "item_return_percentile"}));
}

TEST(UserDetails, KeysAreTheirTextsExactly) {
  for (const Keys key : {Keys::returnRate, Keys::returnPercentile, Keys::returnRateTrend}) {
    const std::string name(UserDetails::stringValue(key));
    EXPECT_EQ(UserDetails::codingKey(name), key);
    EXPECT_EQ(UserDetails::codingKey(name + ' '), std::nullopt);
  }
}

}  // namespace
