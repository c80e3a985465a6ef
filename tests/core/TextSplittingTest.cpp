#include <gmock/gmock.h>

#include "Vectors.h"
#include "platform/foundation/TextSplitting.h"

using quorix::foundation::components;
using testing::ElementsAreArray;

namespace {

TEST(TextSplitting, SplitsAsPhonesDo) {
  forEachRow("titles", [](simdjson::dom::element row) {
    const std::string title = text(row, "title");
    auto pieces = components(title, text(row, "number"));
    std::erase(pieces, "");
    std::vector<std::string_view> expected;
    for (const auto part : row["parts"].get_array()) expected.push_back(part);
    EXPECT_THAT(pieces, ElementsAreArray(expected));
  });
}

TEST(TextSplitting, ComparesWholeCharactersByCanonicalEquivalence) {
  using Pieces = std::vector<std::string_view>;
  const struct {
    std::string_view text, separator;
    Pieces pieces;
  } rows[] = {
      {"", "x", {""}},
      {"ä", "", {"ä"}},
      {"xäxx", "x", {"", "ä", "", ""}},
      {"aaa", "aa", {"", "a"}},
      {"äaaa", "aa", {"ä", "a"}},
      {"ab", "abc", {"ab"}},
      {"20%\u0301 20% x", "20%", {"20%\u0301 ", " x"}},
      {"cafe\u0301 e\u0301", "e", {"cafe\u0301 e\u0301"}},
      {"x\u1EC7y e\u0323\u0302z", "e\u0302\u0323", {"x", "y ", "z"}},  // marks in any order
      {"10 \u212A", "K", {"10 ", ""}},                                 // the sign for kelvin
      {"\uAC00-\u1100\u1161-", "\uAC00", {"", "-", "-"}},              // Hangul
      {"ﬁ", "fi", {"ﬁ"}},  // compatible is not equivalent
      {"a\r\nb\nc", "\n", {"a\r\nb", "c"}},
      {"\U0001F1EA\U0001F1F8\U0001F1EA\U0001F1F8",
       "\U0001F1F8\U0001F1EA",
       {"\U0001F1EA\U0001F1F8\U0001F1EA\U0001F1F8"}},  // no flag across two flags
      {"\U0001F469\u200D\U0001F4BB \U0001F469", "\U0001F469", {"\U0001F469\u200D\U0001F4BB ", ""}},
      {"خصم ٢٠٪ لك", "٢٠٪", {"خصم ", " لك"}},
      {"返品率20％です", "20％", {"返品率", "です"}},
      {"\xFFx\xC3", "x", {"\xFF", "\xC3"}},
  };
  for (const auto& row : rows) {
    EXPECT_THAT(components(row.text, row.separator), ElementsAreArray(row.pieces)) << row.text;
  }
}

}  // namespace
