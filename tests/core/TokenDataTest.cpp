#include <gtest/gtest.h>

#include <bit>
#include <charconv>

#include "QuorixWidgets/data/TokenData.h"
#include "Vectors.h"
#include "platform/foundation/Base64.h"

using quorix::parseTokenData;
using quorix::TokenData;
using quorix::TokenRefusal;

namespace {

std::string tokenWith(std::string_view payload) {
  return "h." + quorix::foundation::encodeBase64(payload) + ".s";
}

void expectFigures(const std::optional<TokenData>& data, simdjson::dom::element expected) {
  ASSERT_EQ(data.has_value(), !expected.is_null());
  if (!data) return;
  std::uint64_t bits = 0;
  const std::string hex = text(expected, "score_bits");
  std::from_chars(hex.data(), hex.data() + hex.size(), bits, 16);
  EXPECT_EQ(std::bit_cast<std::uint64_t>(data->score), bits);
  EXPECT_EQ(data->currency, text(expected, "currency"));
  EXPECT_EQ(std::to_string(data->returnsFee), text(expected, "base"));
  EXPECT_EQ(std::to_string(data->discountedReturnsFee), text(expected, "discounted"));
}

TEST(TokenData, ReadsTokens) {
  forEachRow("tokens", [](simdjson::dom::element row) {
    expectFigures(parseTokenData(text(row, "token")), row["result"]);
  });
}

TEST(TokenData, IsStrictWhereOtherReadersSlip) {
  forEachRow("tokens_open", [](simdjson::dom::element row) {
    // A byte order mark is harmless and skipped, as it is in translation tables.
    const bool skipped = text(row, "name") == "document bom";
    expectFigures(parseTokenData(text(row, "token")), row[skipped ? "result" : "strict"]);
  });
}

TEST(TokenData, TellsTheStepThatRefused) {
  const auto data = [](std::string_view members) {
    return tokenWith("{\"data\":{" + std::string(members) + "}}");
  };
  const struct {
    std::string token;
    TokenRefusal refusal;
  } rows[] = {
      {"", TokenRefusal::noPayload},
      {"a.\u0301b", TokenRefusal::noPayload},
      {"a.b\u0301", TokenRefusal::notBase64},
      {"a.!", TokenRefusal::notBase64},
      {"a.AAAA", TokenRefusal::notJSON},
      {tokenWith("7"), TokenRefusal::notJSON},
      {tokenWith("[]"), TokenRefusal::notAnObject},
      {tokenWith("{}"), TokenRefusal::noData},
      {tokenWith("{\"data\":null}"), TokenRefusal::noData},
      {data(""), TokenRefusal::noScore},
      {data("\"score\":\"1\""), TokenRefusal::noScore},
      {data("\"score\":1,\"fee_currency\":1"), TokenRefusal::noCurrency},
      {data("\"score\":1,\"fee_currency\":\"\",\"base_fee_amount\":4.99"), TokenRefusal::noBaseFee},
      {data("\"score\":1,\"fee_currency\":\"\",\"base_fee_amount\":4"),
       TokenRefusal::noDiscountedFee},
  };
  for (const auto& row : rows) {
    const auto reading = quorix::readToken(row.token);
    ASSERT_TRUE(std::holds_alternative<TokenRefusal>(reading)) << row.token;
    EXPECT_EQ(describe(std::get<TokenRefusal>(reading)), describe(row.refusal)) << row.token;
    EXPECT_EQ(parseTokenData(row.token), std::nullopt);
  }
}

TEST(TokenData, ReadsAPayloadOfAnySize) {
  const std::string payload =
      "{\"data\":{\"score\":1,\"fee_currency\":\"EUR\",\"base_fee_amount\":1,"
      "\"discounted_fee_amount\":0,\"x\":\"" +
      std::string(5'000'000, 'x') + "\"}}";
  EXPECT_EQ(parseTokenData(tokenWith(payload)), (TokenData{1, "EUR", 1, 0}));
}

}  // namespace
