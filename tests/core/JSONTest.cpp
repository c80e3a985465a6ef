#include <gtest/gtest.h>

#include <limits>

#include "platform/foundation/JSON.h"

using quorix::foundation::Error;
using quorix::foundation::JSONDocument;
using quorix::foundation::JSONValue;

namespace {

std::int64_t errorCode(std::string_view bytes) {
  JSONDocument document;
  const auto result = document.parse(bytes);
  const auto* error = std::get_if<Error>(&result);
  if (!error) return 0;
  EXPECT_EQ(error->domain, "JSON");
  EXPECT_FALSE(error->description.empty());
  return error->code;
}

constexpr auto kMalformed = static_cast<std::int64_t>(JSONDocument::ErrorCode::malformed);
constexpr auto kTooDeep = static_cast<std::int64_t>(JSONDocument::ErrorCode::tooDeep);

// Each stands where nobody looks at it: as an element of an array and as a member of an object.
TEST(JSON, RefusesWhatIsMalformedAlsoInValuesThatNobodyReads) {
  const std::string_view values[] = {
      "",
      "1.",
      ".5",
      "01",
      "-",
      "+1",
      "1e+",
      "NaN",
      "Infinity",
      "1e400",
      "1e99999999999999999999999",
      "1a",
      "tru",
      "nul",
      "True",
      "'x'",
      "\"x",
      "\"\\x\"",
      "\"\\u12g4\"",
      "\"\\ud800\"",
      "\"\\udc00\"",
      "\"\\ud800\\ud800\"",
      "\"\x01\"",
      "\"\xFF\"",
      "\"\xC0\xAF\"",
      "\"\xED\xA0\x80\"",
      "\"\xF4\x90\x80\x80\"",
      "[1,]",
      "[1 2]",
      "[",
      "[}",
      "{\"a\":1,}",
      "{\"a\":}",
      "{1:2}",
      "{\"\\ud800\":1}",
      "{\"a\":1 \"b\":2}",
      "// x\n1",
      "\u00A01",
      "\xEF\xBB\xBF"
      "1",
      std::string_view("1\0", 2),
      std::string_view("\"\0\"", 3),
      std::string_view("\0", 1),
  };
  for (const std::string_view value : values) {
    std::string element("[0,");
    element.append(value).append(",2]");
    EXPECT_EQ(errorCode(element), kMalformed) << element;
    std::string member("{\"a\":0,\"b\":");
    member.append(value).append(",\"c\":{}}");
    EXPECT_EQ(errorCode(member), kMalformed) << member;
  }
}

TEST(JSON, RefusesWholeDocuments) {
  const std::string_view documents[] = {
      "",
      "\xEF\xBB\xBF",
      "{",
      "{}{}",
      "[[1]",
      std::string_view("\xFF\xFE{\0}\0", 6),  // UTF-16
      std::string_view("{}\0", 3),
      "\xEF\xBB\xBF\xEF\xBB\xBF{}",
      "1",
      "null",
  };
  for (const auto document : documents) EXPECT_EQ(errorCode(document), kMalformed) << document;
}

TEST(JSON, BoundsNesting) {
  const auto nested = [](std::size_t depth) {
    return std::string(depth, '[') + std::string(depth, ']');
  };
  EXPECT_EQ(errorCode(nested(600)), 0);
  EXPECT_EQ(errorCode(nested(601)), kTooDeep);
  EXPECT_EQ(errorCode(std::string(1'000'000, '[')), kTooDeep);
}

TEST(JSON, ReadsValues) {
  JSONDocument document;
  const auto result = document.parse(
      "\xEF\xBB\xBF {\"n\":null,\"t\":true,\"s\":\"a\\u00e9\\ud83d\\ude00\\n\\u0000\",\"\":[ 1 ,\n"
      "{\"x\":[]}, \"y\"],\"d\":-0.5e1 ,\"e\":{},\"k\\\"\":2,\"d\":3}\r\n");
  const JSONValue top = std::get<JSONValue>(result);
  EXPECT_EQ(top.member("n")->kind(), JSONValue::Kind::null);
  EXPECT_EQ(top.member("t")->number(), 1);
  EXPECT_EQ(top.member("t")->integer(), 1);
  EXPECT_EQ(top.member("t")->string(), std::nullopt);
  EXPECT_EQ(top.member("s")->string(), std::string_view("aé😀\n\0", 9));
  EXPECT_EQ(top.member("s")->integer(), std::nullopt);
  EXPECT_EQ(top.member("k\"")->number(), 2);
  EXPECT_EQ(top.member("missing"), std::nullopt);

  const auto elements = top.member("")->elements();
  ASSERT_EQ(elements.size(), 3u);
  EXPECT_EQ(elements[0].integer(), 1);
  EXPECT_EQ(elements[2].string(), "y");
  EXPECT_EQ(elements[2].member("x"), std::nullopt);

  EXPECT_EQ(top.member("d")->integer(), 3) << "the last of two counts";
  EXPECT_EQ(top.members().size(), 7u);
}

TEST(JSON, ReadsAnotherDocumentAfterARefusal) {
  JSONDocument document;
  EXPECT_TRUE(std::holds_alternative<Error>(document.parse("[[[")));
  const auto result = document.parse("[7]");
  EXPECT_EQ(std::get<JSONValue>(result).elements().at(0).integer(), 7);
}

TEST(JSON, FindsTheIntegerThatANumberIsExactly) {
  constexpr auto kMost = std::numeric_limits<std::int64_t>::max();
  constexpr auto kLeast = std::numeric_limits<std::int64_t>::min();
  const std::string zeros(300, '0');
  const struct {
    std::string number;
    std::optional<std::int64_t> integer;
  } rows[] = {
      {"0", 0},
      {"0e9999", 0},
      {"499.00", 499},
      {"4.99e2", 499},
      {"4.99e00000000000000000000000002", 499},
      {"0e99999999999999999999999999", 0},
      {"0.00499e+5", 499},
      {"-4.99e0000002", -499},
      {"4.995e2", std::nullopt},
      {"499.0000000000000000001", std::nullopt},
      {"0." + zeros + "1e301", 1},
      {"1" + zeros + "e-300", 1},
      {"9007199254740993.0", 9007199254740993},
      {"1e19", std::nullopt},
      {"9223372036854775807", kMost},
      {"9223372036854775807.0", kMost},
      {"9223372036854775808", std::nullopt},
      {"922337203685477580.8e1", std::nullopt},
      {"-9223372036854775808", kLeast},
      {"-922337203685477580.8e1", kLeast},
      {"-9223372036854775809", std::nullopt},
      {"18446744073709551615", std::nullopt},
      {"123456789012345678901234567890", std::nullopt},
      {"1e-9999", std::nullopt},
  };
  for (const auto& row : rows) {
    JSONDocument document;
    const auto result = document.parse("[" + row.number + " ]");
    ASSERT_TRUE(std::holds_alternative<JSONValue>(result)) << row.number;
    EXPECT_EQ(std::get<JSONValue>(result).elements().at(0).integer(), row.integer) << row.number;
  }
}

}  // namespace
