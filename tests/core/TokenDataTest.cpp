#include "QuorixWidgets/data/TokenData.h"
#include "Vectors.h"
#include "tests/core/EncodeBase64.h"

using quorix::parseTokenData;
using quorix::TokenData;
using quorix::TokenRefusal;

namespace {

std::string tokenWith(std::string_view payload) {
  return "h." + quorix::testing::encodeBase64(payload) + ".s";
}

void expectFigures(const std::optional<TokenData>& data, simdjson::dom::element expected) {
  ASSERT_EQ(data.has_value(), !expected.is_null());
  if (!data) return;
  EXPECT_EQ(std::bit_cast<std::uint64_t>(data->score),
            std::bit_cast<std::uint64_t>(bitsOfDouble(expected, "score_bits")));
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
  forEachRow("token_refusals", [](simdjson::dom::element row) {
    simdjson::dom::element payload;
    const bool isWhole = row["payload"].get(payload) != simdjson::SUCCESS;
    const std::string token =
        isWhole ? text(row, "token") : tokenWith(simdjson::to_string(payload));
    const auto reading = quorix::readToken(token);
    ASSERT_TRUE(std::holds_alternative<TokenRefusal>(reading));
    EXPECT_EQ(describe(std::get<TokenRefusal>(reading)), text(row, "refusal"));
    EXPECT_EQ(parseTokenData(token), std::nullopt);
  });
}

TEST(TokenData, HasABoundOnATokensLength) {
  const std::string payload =
      "{\"data\":{\"score\":1,\"fee_currency\":\"EUR\",\"base_fee_amount\":1,"
      "\"discounted_fee_amount\":0,\"x\":\"" +
      std::string(40'000, 'x') + "\"}}";
  std::string token = tokenWith(payload);
  token.resize(quorix::longestToken, 's');  // the signature
  EXPECT_EQ(parseTokenData(token), (TokenData{1, "EUR", 1, 0}));
  const quorix::TokenReading tooLong = TokenRefusal::tooLong;
  EXPECT_EQ(quorix::readToken(token + 's'), tooLong);
  // Nor is a byte of it looked at: there are no more than two.
  const char* volatile text = "h.";
  EXPECT_EQ(quorix::readToken({text, std::size_t{1} << 40}), tooLong);
}

}  // namespace
