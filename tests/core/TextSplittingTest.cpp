#include "Vectors.h"
#include "platform/foundation/TextSplitting.h"

using quorix::foundation::components;

namespace {

using Pieces = std::vector<std::string_view>;

Pieces expectedParts(simdjson::dom::element row) {
  Pieces parts;
  for (const simdjson::dom::element part : row["parts"]) parts.emplace_back(part);
  return parts;
}

TEST(TextSplitting, SplitsAsPhonesDo) {
  forEachRow("titles", [](simdjson::dom::element row) {
    const std::string title = text(row, "title");
    auto pieces = components(title, text(row, "number"));
    std::erase(pieces, "");
    EXPECT_EQ(pieces, expectedParts(row));
  });
}

TEST(TextSplitting, ComparesWholeCharactersByCanonicalEquivalence) {
  forEachRow("titles_own", [](simdjson::dom::element row) {
    const std::string title = text(row, "title");
    EXPECT_EQ(components(title, text(row, "number")), expectedParts(row));
  });
  EXPECT_EQ(components("\xFFx\xC3", "x"), (Pieces{"\xFF", "\xC3"}));
}

}  // namespace
