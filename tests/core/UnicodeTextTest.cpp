#include "platform/foundation/UnicodeText.h"

#include "Vectors.h"

using quorix::foundation::components;
using quorix::foundation::uppercased;

namespace {

using Pieces = std::vector<std::string_view>;

void expectPieces(const std::string& table, bool withEmptyOnes) {
  forEachRow(table, [&](simdjson::dom::element row) {
    const std::string title = text(row, "title");
    auto pieces = components(title, text(row, "number"));
    if (!withEmptyOnes) std::erase(pieces, "");
    Pieces expected;
    for (const simdjson::dom::element piece : row["parts"]) expected.emplace_back(piece);
    EXPECT_EQ(pieces, expected);
  });
}

TEST(UnicodeText, SplitsAsPhonesDo) {
  expectPieces("titles", false);
  expectPieces("titles_own", true);
  expectPieces("graphemes", false);
  // Not UTF-8: there is no mark to combine with.
  EXPECT_EQ(components("\xFFx\xC3", "x"), (Pieces{"\xFF", "\xC3"}));
  EXPECT_EQ(components("\xCC.\x81", "."), (Pieces{"\xCC", "\x81"}));
  EXPECT_EQ(components("a.\xCC", "."), (Pieces{"a", "\xCC"}));
}

TEST(UnicodeText, CapitalsFollowTheLanguage) {
  forEachRow("casing", [](simdjson::dom::element row) {
    EXPECT_EQ(uppercased(text(row, "text"), text(row, "language")), text(row, "upper"));
  });
  EXPECT_EQ(uppercased("a\xFFz", "xx"), "A\uFFFDZ");
}

}  // namespace
