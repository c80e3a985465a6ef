#include "platform/foundation/JSON.h"

#include "Vectors.h"

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

TEST(JSON, RefusesWhatIsMalformed) {
  // Each is in a place that the reader skips: an element of an array and a member of an object.
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

TEST(JSON, ReadsValues) {
  JSONDocument document;
  EXPECT_TRUE(std::holds_alternative<Error>(document.parse("[[[")));
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

TEST(JSON, FindsTheIntegerThatANumberIsExactly) {
  forEachRow("json/integers", [](simdjson::dom::element row) {
    JSONDocument document;
    const auto result = document.parse("[" + text(row, "number") + " ]");
    ASSERT_TRUE(std::holds_alternative<JSONValue>(result));
    const auto integer = std::get<JSONValue>(result).elements().at(0).integer();
    ASSERT_EQ(integer.has_value(), !row["integer"].is_null());
    if (integer) {
      EXPECT_EQ(*integer, std::int64_t(row["integer"]));
    }
  });
}

}  // namespace
