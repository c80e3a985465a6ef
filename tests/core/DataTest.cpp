#include "QuorixWidgets/data/TokenData.h"
#include "QuorixWidgets/data/UserDetails.h"
#include "platform/foundation/Base64.h"
#include "platform/foundation/JSON.h"
#include "tests/core/EncodeBase64.h"
#include "tests/core/Vectors.h"

namespace quorix {
namespace {

using foundation::decodeBase64;
using foundation::DecodingError;
using foundation::JSONDocument;
using foundation::JSONValue;
using Kind = DecodingError::Kind;

std::int64_t errorCode(std::string_view bytes) {
  JSONDocument document;
  const auto result = document.parse(bytes);
  const auto* error = std::get_if<foundation::Error>(&result);
  if (!error) return 0;
  EXPECT_EQ(error->domain, "JSON");
  EXPECT_FALSE(error->description.empty());
  return error->code;
}

constexpr auto kMalformed = static_cast<std::int64_t>(JSONDocument::ErrorCode::malformed);
constexpr auto kTooDeep = static_cast<std::int64_t>(JSONDocument::ErrorCode::tooDeep);

TEST(JSON, RefusesWhatIsMalformed) {
  // Puts each value where the reader skips it: in an array and in an object.
  for (const std::string& value : readLines("json/values")) {
    EXPECT_EQ(errorCode("[0," + value + ",2]"), kMalformed) << value;
    EXPECT_EQ(errorCode(R"({"a":0,"b":)" + value + R"(,"c":{}})"), kMalformed) << value;
  }
  for (const std::string& document : readLines("json/documents")) {
    EXPECT_EQ(errorCode(document), kMalformed) << document;
  }
}

TEST(JSON, BoundsNesting) {
  const auto nested = [](std::size_t depth) {
    return std::string(depth, '[') + std::string(depth, ']');
  };
  EXPECT_EQ(errorCode(nested(600)), 0);
  EXPECT_EQ(errorCode(nested(601)), kTooDeep);
  EXPECT_EQ(errorCode(nested(1'000'000)), kTooDeep);
  EXPECT_EQ(errorCode(std::string(1'000'000, '[')), kMalformed);
}

TEST(JSON, FindsTheIntegerThatANumberIsExactly) {
  forEachRow("json/integers", [](simdjson::dom::element row) {
    JSONDocument document;
    const auto result = document.parse("[" + ::text(row, "number") + " ]");
    ASSERT_TRUE(std::holds_alternative<JSONValue>(result));
    const auto integer = std::get<JSONValue>(result).elements().at(0).integer();
    ASSERT_EQ(integer.has_value(), !row["integer"].is_null());
    if (integer) {
      EXPECT_EQ(*integer, std::int64_t(row["integer"]));
    }
  });
}

TEST(Base64, DecodesWhatIsWellFormedAndNothingElse) {
  forEachRow("b64", [](simdjson::dom::element row) {
    const auto bytes = decodeBase64(::text(row, "text"));
    ASSERT_EQ(bytes.has_value(), !row["hex"].is_null());
    if (bytes) {
      EXPECT_EQ(*bytes, fromHex(::text(row, "hex")));
    }
  });
  // Surplus padding, which lenient decoders accept.
  forEachRow("b64_open", [](simdjson::dom::element row) {
    EXPECT_EQ(decodeBase64(::text(row, "text")), std::nullopt);
  });
  EXPECT_EQ(decodeBase64("-_8=+/8"), std::nullopt);
  EXPECT_EQ(decodeBase64("-/8="), "\xFB\xFF") << "the alphabet for addresses, too";
  EXPECT_EQ(decodeBase64("+_8="), "\xFB\xFF");
}

std::string tokenWith(std::string_view payload) {
  return "h." + testing::encodeBase64(payload) + ".s";
}

void expectFigures(const std::optional<TokenData>& data, simdjson::dom::element expected) {
  ASSERT_EQ(data.has_value(), !expected.is_null());
  if (!data) return;
  EXPECT_EQ(std::bit_cast<std::uint64_t>(data->score),
            std::bit_cast<std::uint64_t>(bitsOfDouble(expected, "score_bits")));
  EXPECT_EQ(data->currency, ::text(expected, "currency"));
  EXPECT_EQ(std::to_string(data->returnsFee), ::text(expected, "base"));
  EXPECT_EQ(std::to_string(data->discountedReturnsFee), ::text(expected, "discounted"));
}

TEST(TokenData, IsReadAndStrictlySoWhereOtherReadersSlip) {
  forEachRow("tokens", [](simdjson::dom::element row) {
    expectFigures(parseTokenData(::text(row, "token")), row["result"]);
  });
  forEachRow("tokens_open", [](simdjson::dom::element row) {
    // A byte order mark is skipped, as in translation tables.
    const bool skipped = ::text(row, "name") == "document bom";
    expectFigures(parseTokenData(::text(row, "token")), row[skipped ? "result" : "strict"]);
  });
}

TEST(TokenData, TellsTheStepThatRefused) {
  forEachRow("token_refusals", [](simdjson::dom::element row) {
    simdjson::dom::element payload;
    const bool isWhole = row["payload"].get(payload) != simdjson::SUCCESS;
    const std::string token =
        isWhole ? ::text(row, "token") : tokenWith(simdjson::to_string(payload));
    const auto reading = readToken(token);
    ASSERT_TRUE(std::holds_alternative<TokenRefusal>(reading));
    EXPECT_EQ(describe(std::get<TokenRefusal>(reading)), ::text(row, "refusal"));
    EXPECT_EQ(parseTokenData(token), std::nullopt);
  });
}

TEST(TokenData, HasABoundOnATokensLength) {
  const std::string payload =
      "{\"data\":{\"score\":1,\"fee_currency\":\"EUR\",\"base_fee_amount\":1,"
      "\"discounted_fee_amount\":0,\"x\":\"" +
      std::string(40'000, 'x') + "\"}}";
  std::string token = tokenWith(payload);
  token.resize(longestToken, 's');  // the signature
  EXPECT_EQ(parseTokenData(token), (TokenData{1, "EUR", 1, 0}));
  const TokenReading tooLong = TokenRefusal::tooLong;
  EXPECT_EQ(readToken(token + 's'), tooLong);
  // Reads no byte of a token that is too long: this one has only two.
  const char* volatile text = "h.";
  EXPECT_EQ(readToken({text, std::size_t{1} << 40}), tooLong);
}

std::string nameOf(Kind kind) {
  const char* names[] = {"keyNotFound", "typeMismatch", "valueNotFound", "dataCorrupted"};
  return names[static_cast<std::size_t>(kind)];
}

void expectReading(simdjson::dom::element row) {
  const auto reading = UserDetails::decode(::text(row, "body"));
  if (const auto* details = std::get_if<UserDetails>(&reading)) {
    EXPECT_EQ(*details,
              (UserDetails{number(row, "rate"), number(row, "trend"), number(row, "percentile")}));
  } else {
    const auto& error = std::get<DecodingError>(reading);
    EXPECT_EQ(nameOf(error.kind), ::text(row, "error"));
    EXPECT_EQ(error.key, ::text(row, "key"));
  }
}

TEST(UserDetails, DecodesAsPhonesDoAndNamesTheFirstReadThatFails) {
  forEachRow("users", expectReading);
  forEachRow("users_own", expectReading);
}

TEST(UserDetails, KeysAreTheirTextsExactly) {
  EXPECT_EQ(UserDetails::codingKey("return_rate_trend"), UserDetails::CodingKeys::returnRateTrend);
  EXPECT_EQ(UserDetails::codingKey("return_rate_trend "), std::nullopt);
}

}  // namespace
}  // namespace quorix
