#include "platform/foundation/UnicodeText.h"

#include "Vectors.h"

using quorix::foundation::components;
using quorix::foundation::uppercased;

namespace {

using Pieces = std::vector<std::string_view>;

Pieces expected(simdjson::dom::element row, std::string_view column) {
  Pieces pieces;
  for (const simdjson::dom::element piece : row[column]) pieces.emplace_back(piece);
  return pieces;
}

TEST(UnicodeText, SplitsAsPhonesDo) {
  forEachRow("titles", [](simdjson::dom::element row) {
    const std::string title = text(row, "title");
    auto pieces = components(title, text(row, "number"));
    std::erase(pieces, "");
    EXPECT_EQ(pieces, expected(row, "parts"));
  });
}

TEST(UnicodeText, ComparesWholeCharactersByCanonicalEquivalence) {
  forEachRow("titles_own", [](simdjson::dom::element row) {
    const std::string title = text(row, "title");
    EXPECT_EQ(components(title, text(row, "number")), expected(row, "parts"));
  });
  EXPECT_EQ(components("\xFFx\xC3", "x"), (Pieces{"\xFF", "\xC3"}));
}

TEST(UnicodeText, SplitsAtDotsThatAreCharactersOfTheirOwn) {
  forEachRow("graphemes", [](simdjson::dom::element row) {
    const std::string given = text(row, "text");
    auto pieces = components(given, ".");
    std::erase(pieces, "");
    EXPECT_EQ(pieces, expected(row, "pieces"));
  });
  // Not UTF-8: there is no mark to combine with.
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
