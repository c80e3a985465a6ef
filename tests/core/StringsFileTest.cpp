#include "platform/foundation/StringsFile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Vectors.h"

namespace quorix::foundation {
namespace {

std::string outcome(const Result<StringTable>& result) {
  const auto* error = std::get_if<Error>(&result);
  if (error == nullptr) return "table";
  if (error->domain != "StringsFile" || !error->description.starts_with("line ")) return "unknown";
  return error->code == static_cast<std::int64_t>(StringsFileErrorCode::notATable) ? "other"
                                                                                   : "error";
}

TEST(StringsFile, IsReadAsPhonesReadIt) {
  forEachRow("strings_files", [](simdjson::dom::element row) {
    const auto result = readStringsFile(text(row, "file"));
    ASSERT_EQ(outcome(result), text(row, "outcome"));
    if (outcome(result) != "table") return;
    StringTable expected;
    for (const auto entry : row["table"].get_object()) {
      expected.emplace(entry.key, std::string_view(entry.value));
    }
    EXPECT_EQ(std::get<StringTable>(result), expected);
  });
}

}  // namespace
}  // namespace quorix::foundation
