#include "platform/foundation/StringsFile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Vectors.h"

namespace quorix::foundation {
namespace {

std::string outcome(const Result<StringTable>& result) {
  const auto* error = std::get_if<Error>(&result);
  if (error == nullptr) return "table";
  return error->code == static_cast<std::int64_t>(StringsFileErrorCode::notATable) ? "other"
                                                                                   : "error";
}

void expectReading(simdjson::dom::element row) {
  const bool isText = row["bytes"].error() != simdjson::SUCCESS;
  const auto result = readStringsFile(isText ? text(row, "file") : fromHex(text(row, "bytes")));
  ASSERT_EQ(outcome(result), text(row, "outcome"));
  if (const auto* table = std::get_if<StringTable>(&result)) {
    StringTable expected;
    for (const auto entry : row["table"].get_object()) {
      expected.emplace(entry.key, std::string_view(entry.value));
    }
    EXPECT_EQ(*table, expected);
    return;
  }
  const std::string& description = std::get<Error>(result).description;
  EXPECT_TRUE(description.starts_with("line ")) << description;
  if (row["says"].error() == simdjson::SUCCESS) {
    EXPECT_THAT(description, ::testing::HasSubstr(text(row, "says")));
  }
}

TEST(StringsFile, IsReadAsPhonesReadIt) { forEachRow("strings_files", expectReading); }

TEST(StringsFile, HoldsManySpellingsAndSaysInWhichLineItGoesWrong) {
  forEachRow("strings_files_own", expectReading);
}

TEST(StringsFile, MayBeNestedWithoutEnd) {
  const std::string deep(200'000, '(');
  EXPECT_EQ(outcome(readStringsFile("a = " + deep)), "error");
  EXPECT_EQ(outcome(readStringsFile("a = " + deep + std::string(deep.size(), ')') + ';')), "other");
}

}  // namespace
}  // namespace quorix::foundation
