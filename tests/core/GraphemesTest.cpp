#include "platform/foundation/Graphemes.h"

#include <gmock/gmock.h>

#include "Vectors.h"

using quorix::foundation::splitCharacters;
using testing::ElementsAre;
using testing::ElementsAreArray;

namespace {

TEST(Graphemes, SplitsAtDotsThatAreCharactersOfTheirOwn) {
  forEachRow("graphemes", [](simdjson::dom::element row) {
    std::vector<std::string_view> pieces;
    for (const simdjson::dom::element piece : row["pieces"]) pieces.emplace_back(piece);
    EXPECT_THAT(splitCharacters(text(row, "text"), '.'), ElementsAreArray(pieces));
  });
  // Not UTF-8: nothing to combine with.
  EXPECT_THAT(splitCharacters("\xCC.\x81", '.'), ElementsAre("\xCC", "\x81"));
  EXPECT_THAT(splitCharacters("a.\xCC", '.'), ElementsAre("a", "\xCC"));
}

}  // namespace
