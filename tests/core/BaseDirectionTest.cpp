#include "platform/text/TextAnalysis.h"

#include <gtest/gtest.h>

namespace quorix::text {
namespace {

constexpr auto ltr = layout::LayoutDirection::leftToRight;
constexpr auto rtl = layout::LayoutDirection::rightToLeft;

TEST(BaseDirection, FollowsTheLettersAndNotThePage) {
  const struct {
    const char* words;
    layout::LayoutDirection onLeftToRightPage, onRightToLeftPage;
  } rows[] = {
      {"", ltr, ltr},
      {"1.234,00\u00A0€", ltr, ltr},
      {"18 %", ltr, ltr},
      {"Su tarifa (18 %).", ltr, ltr},
      {"\u200F١٬٢٣٤٫٠٠\u00A0€", rtl, rtl},  // a mark says so
      {"18 رسوم", rtl, rtl},
      {"Quorix رسوم", ltr, rtl},
      {"רסום Quorix", rtl, rtl},
      {"\xFF\xFE", ltr, ltr},  // not UTF-8
  };
  for (const auto& row : rows) {
    const std::vector<text::Run> runs = {{row.words, {}, {}}};
    EXPECT_EQ(baseDirection({runs, ltr}), row.onLeftToRightPage) << row.words;
    EXPECT_EQ(baseDirection({runs, rtl}), row.onRightToLeftPage) << row.words;
  }
}

TEST(UnspacedWords, AreThoseOfScriptsWithoutBlanks) {
  std::u16string found;
  const std::u16string_view text = u"Quorix 返品手数料 €9";
  for (const WordRange& word : unspacedWords(text)) {
    found +=
        text.substr(static_cast<std::size_t>(word.start), static_cast<std::size_t>(word.length));
    found += u'|';
  }
  EXPECT_EQ(found, u"返品|手数料|");
  EXPECT_TRUE(unspacedWords(u"Rücksendegebühr 1.234,00\u00A0€").empty());
}

}  // namespace
}  // namespace quorix::text
