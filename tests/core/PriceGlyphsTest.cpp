#include "platform/text/PriceGlyphs.h"

#include <gtest/gtest.h>

namespace quorix {
namespace {

using text::PriceGlyphs;

/// A face as its shaper sees it: a glyph and its advance by its neighbors, 0 at a text's ends.
struct Face {
  std::function<std::uint32_t(char16_t before, char16_t character)> glyph =
      [](char16_t, char16_t character) { return character; };
  std::function<double(char16_t before, char16_t character, char16_t after)> advance =
      [](char16_t, char16_t, char16_t) { return 10; };

  std::vector<PriceGlyphs::Glyph> shape(std::u16string_view text) const {
    std::vector<PriceGlyphs::Glyph> shaped;
    double x = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
      const char16_t before = i > 0 ? text[i - 1] : u'\0';
      shaped.push_back({glyph(before, text[i]), x, advance(0, text[i], 0)});
      x += advance(before, text[i], i + 1 < text.size() ? text[i + 1] : u'\0');
    }
    return shaped;
  }

  bool teach(PriceGlyphs& learned) const {
    for (const std::u16string& sample : PriceGlyphs::samples()) {
      if (!learned.learn(sample, shape(sample))) return false;
    }
    return true;
  }
};

TEST(PriceGlyphs, SetAPriceAsItsFaceShapesIt) {
  Face face;  // sets pairs closer, by both characters
  face.advance = [](char16_t, char16_t character, char16_t after) {
    return 10 + character % 7 - after % 5 / 8.0;
  };
  PriceGlyphs learned;
  ASSERT_TRUE(face.teach(learned));
  for (const std::u16string_view price : {u"€1,234.56", u"7", u"98.076\u00A0$", u"£0.25"}) {
    std::vector<std::pair<std::uint32_t, double>> set, shaped;
    const auto advance =
        learned.set(price, [&](std::uint32_t index, double x) { set.emplace_back(index, x); });
    double end = 0;
    for (const PriceGlyphs::Glyph& glyph : face.shape(price)) {
      shaped.emplace_back(glyph.index, glyph.x);
      end = glyph.x + glyph.advance;
    }
    EXPECT_EQ(set, shaped);
    EXPECT_EQ(advance, end);
  }
  for (const std::u16string_view other : {u"x1", u"1x", u"1 x", u"1\u20601", u"−1"}) {
    EXPECT_FALSE(learned.set(other, [](auto...) {}));
  }
}

TEST(PriceGlyphs, OfAFaceWithMoreRulesAreNotLearned) {
  Face joins, spaces, spacesBack;
  joins.glyph = [](char16_t before, char16_t character) {
    return before == u'€' && character == u'4' ? 1 : character;
  };
  const auto closer = [](std::u16string_view where) {
    return [where](char16_t before, char16_t character, char16_t after) {
      return std::u16string{before, character, after} == where ? 9 : 10;
    };
  };
  spaces.advance = closer(u".1,");      // which the first sample has
  spacesBack.advance = closer(u"9.8");  // and the second
  for (const Face& face : {joins, spaces, spacesBack}) {
    PriceGlyphs learned;
    EXPECT_FALSE(face.teach(learned));
  }
  PriceGlyphs learned;
  const std::u16string sample = PriceGlyphs::samples()[0];
  auto shaped = Face().shape(sample);
  shaped.push_back(shaped.back());  // a character of two glyphs
  EXPECT_FALSE(learned.learn(sample, shaped));
}

TEST(PriceGlyphs, AreLearnedOnceBeforeTheSixteenthPrice) {
  PriceGlyphs glyphs;
  for (int price = 1; price < 100; ++price) EXPECT_EQ(glyphs.isTimeToLearn(), price == 16);
  const auto mayBe = [](std::vector<text::Run> runs, layout::LayoutDirection direction) {
    return PriceGlyphs::mayBePrice({std::move(runs), direction});
  };
  using enum layout::LayoutDirection;
  const text::Run price{"€4.00", {}, {}}, words{"Your fee", {}, {}};
  EXPECT_TRUE(mayBe({price}, leftToRight));
  EXPECT_FALSE(mayBe({price}, rightToLeft));
  EXPECT_FALSE(mayBe({words}, leftToRight));
  EXPECT_FALSE(mayBe({price, words}, leftToRight));
}

}  // namespace
}  // namespace quorix
