#include "platform/foundation/StringFormat.h"

#include <gtest/gtest.h>

#include <charconv>

#include "Vectors.h"

namespace quorix::foundation {
namespace {

double number(std::string_view text) {
  double value = 0;
  std::from_chars(text.data(), text.data() + text.size(), value);
  return value;
}

TEST(StringFormat, ShowsWhatPhonesShow) {
  forEachRow("formats", [](simdjson::dom::element row) {
    const bool isText = row["string"].error() == simdjson::SUCCESS;
    const FormatArgument argument =
        isText ? FormatArgument(text(row, "string")) : FormatArgument(number(text(row, "double")));
    EXPECT_EQ(formatted(text(row, "format"), {argument}), text(row, "text"));
  });
}

}  // namespace
}  // namespace quorix::foundation
