#include "Vectors.h"
#include "platform/foundation/Base64.h"

using quorix::foundation::decodeBase64;

namespace {

TEST(Base64, DecodesWhatIsWellFormedAndNothingElse) {
  forEachRow("b64", [](simdjson::dom::element row) {
    const auto bytes = decodeBase64(text(row, "text"));
    ASSERT_EQ(bytes.has_value(), !row["hex"].is_null());
    if (bytes) {
      EXPECT_EQ(*bytes, fromHex(text(row, "hex")));
    }
  });
}

TEST(Base64, RefusesSurplusPaddingThatLenientDecodersAccept) {
  forEachRow("b64_open", [](simdjson::dom::element row) {
    ASSERT_TRUE(row["strict"].is_null());
    EXPECT_EQ(decodeBase64(text(row, "text")), std::nullopt);
  });
}

TEST(Base64, TakesTheURLSafeAlphabetToo) {
  EXPECT_EQ(decodeBase64("-_8=+/8"), std::nullopt);
  EXPECT_EQ(decodeBase64("-/8="), "\xFB\xFF");
  EXPECT_EQ(decodeBase64("+_8="), "\xFB\xFF");
}

}  // namespace
