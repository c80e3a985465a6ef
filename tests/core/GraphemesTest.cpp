#include <gmock/gmock.h>

#include "platform/foundation/Graphemes.h"

using quorix::foundation::splitCharacters;
using testing::ElementsAreArray;

namespace {

TEST(Graphemes, SplitsAtDotsThatAreCharactersOfTheirOwn) {
  const struct {
    std::string_view text;
    std::vector<std::string_view> pieces;
  } rows[] = {
      {"", {}},
      {".", {}},
      {"a.b", {"a", "b"}},
      {"..a..b.", {"a", "b"}},
      {"a.\u0301b.c", {"a.\u0301b", "c"}},   // combining acute accent
      {"a.\u200Db.c", {"a.\u200Db", "c"}},   // zero-width joiner
      {"a.\uFE0Fb.c", {"a.\uFE0Fb", "c"}},   // variation selector
      {"a.\u0903b.c", {"a.\u0903b", "c"}},   // spacing mark
      {"a.\U0001F3FBb", {"a.\U0001F3FBb"}},  // skin tone
      {"a\u0600.b.c", {"a\u0600.b", "c"}},   // a sign that prepends
      {"a\U000110BD.b", {"a\U000110BD.b"}},  // the same beyond the basic plane
      {".\u0301", {".\u0301"}},
      {"é.ñ", {"é", "ñ"}},              // letters leave the dot alone
      {"a\u0301.b", {"a\u0301", "b"}},  // so does a mark on the letter before
      {"\U0001F1EA.\U0001F1F8", {"\U0001F1EA", "\U0001F1F8"}},
      {"a\r\n.\r\nb", {"a\r\n", "\r\nb"}},
      {std::string_view("a\0.b", 4), {std::string_view("a\0", 2), "b"}},
      {"\xCC.\x81", {"\xCC", "\x81"}},  // not UTF-8: nothing to combine with
      {"a.\xCC", {"a", "\xCC"}},
  };
  for (const auto& row : rows) {
    EXPECT_THAT(splitCharacters(row.text, '.'), ElementsAreArray(row.pieces)) << row.text;
  }
}

}  // namespace
