#include <algorithm>
#include <cmath>

#include "platform/render/KnownGround.h"
#include "platform/render/TextPictures.h"
#include "platform/text/LineCache.h"
#include "platform/text/PriceGlyphs.h"
#include "platform/text/ShapedText.h"
#include "platform/text/TextEngine.h"
#include "tests/core/Vectors.h"

namespace quorix {
namespace {

using layout::infinity;
using text::AttributedText;
using text::PriceGlyphs;

AttributedText textOf(const std::string& words, double points = 14) {
  return {{text::Run{words, {"Face", points}, {}}}};
}

struct Lines {
  text::TextMetrics metrics;
};

/// Breaks letters that are 10 points wide each.
struct CachedLetters {
  text::LineCache<Lines> cache;
  std::string broken;  ///< the widths to which a text was broken
  int measured = 0;

  double width(double offered, const AttributedText& text = textOf("seven..")) {
    const auto breakLines = [&](const auto& unknown, double to) {
      broken += (to == infinity ? "all" : std::to_string(std::lround(to))) + " ";
      const double natural = 10.0 * static_cast<double>(unknown.runs[0].text.size());
      return Lines{{{std::min(natural, std::floor(to / 10) * 10), 20}}};
    };
    return cache.lines(text, offered, breakLines).metrics.size.width;
  }

  double leastWidth(const std::string& words) {
    return cache.leastWidth(textOf(words), [&](const AttributedText& text) {
      ++measured;
      return static_cast<double>(text.runs[0].text.size());
    });
  }
};

// Four breakings are kept.
TEST(LineCache, BreaksATextOnceForAllWidthsThatBreakItAlike) {
  forEachRow("text_breaks", [](simdjson::dom::element row) {
    CachedLetters letters;
    double last = 0;
    for (const double width : row["widths"]) last = letters.width(width);
    EXPECT_EQ(last, double(row["width"]));
    EXPECT_EQ(letters.broken, ::text(row, "broken"));
  });
}

TEST(LineCache, SharesTheLinesOfTextsOfTheSameShapes) {
  AttributedText red = textOf("a"), mirrored = red, named = red;
  red.runs[0].color = {200, 0, 0, 255};
  red.runs[0].underline = true;
  mirrored.direction = layout::LayoutDirection::rightToLeft;
  named.runs[0].font.name = "Other";
  AttributedText twice = red;
  twice.runs.push_back(red.runs[0]);
  CachedLetters letters;
  letters.width(300, textOf("a"));
  letters.width(300, red);
  EXPECT_EQ(letters.broken, "all ");
  for (const auto& other : {textOf("b"), textOf("a", 15), mirrored, named, twice}) {
    EXPECT_FALSE(other.isShapedAs(red));
    letters.broken.clear();
    letters.width(300, other);
    EXPECT_EQ(letters.broken, "all ");
  }
}

TEST(LineCache, KeepsTheTextsThatWereUsedLast) {
  CachedLetters letters;
  const auto words = [](int length) { return std::string(static_cast<std::size_t>(length), 'x'); };
  for (int length = 1; length <= 1000; ++length) {
    EXPECT_EQ(letters.width(infinity, textOf(words(length))), 10 * length);
    EXPECT_EQ(letters.leastWidth(words(length)), length);
    EXPECT_EQ(letters.leastWidth("x"), 1);  // so it stays
  }
  EXPECT_EQ(letters.measured, 1000);
  letters.leastWidth(words(900));
  EXPECT_EQ(letters.measured, 1000);
  letters.leastWidth(words(700));
  EXPECT_EQ(letters.measured, 1001);
  letters.cache.clear();
  letters.leastWidth("x");
  EXPECT_EQ(letters.measured, 1002);
}

struct CountedPicture {
  std::string of;
  std::size_t bytes() const { return of.size() * 1000; }
};

struct CachedPictures {
  render::TextPictures<CountedPicture> cache;
  int made = 0;

  /// The picture's name and number; empty where there is none.
  std::string at(const std::string& words, double width = 100, double scale = 3,
                 graphics::RGBA ground = {0, 0, 0, 0}, graphics::RGBA color = {}) {
    AttributedText text = textOf(words);
    text.runs[0].color = color;
    const auto paint = [&] { return CountedPicture{words + std::to_string(++made)}; };
    const auto* found = cache.find({{{}, {width, 20}}, text}, scale, ground, paint);
    return found ? found->of : "";
  }
};

TEST(TextPictures, AreMadeTheSecondTimeForEachOfTheirLooks) {
  CachedPictures pictures;
  const graphics::RGBA light{250, 250, 250, 255}, dark{28, 28, 30, 255}, red{200, 0, 0, 255};
  for (int time = 0; time < 3; ++time) {
    const bool seen = time > 0;
    EXPECT_EQ(pictures.at("fee"), seen ? "fee1" : "");
    EXPECT_EQ(pictures.at("fee", 90), seen ? "fee2" : "");
    EXPECT_EQ(pictures.at("fee", 100, 2), seen ? "fee3" : "");
    EXPECT_EQ(pictures.at("fee", 100, 3, light), seen ? "fee4" : "");
    EXPECT_EQ(pictures.at("fee", 100, 3, dark), seen ? "fee5" : "");
    EXPECT_EQ(pictures.at("fee", 100, 3, light, red), seen ? "fee6" : "");
  }
  pictures.cache.clear();
  EXPECT_EQ(pictures.at("fee"), "");
}

/// The cache keeps to its bounds: any number of texts neither exceeds them nor gets a wrong
/// picture.
TEST(TextPictures, KeepTheLatestOnly) {
  // Of small pictures 128 are kept, of those with 131 kB as many as 2 MiB hold.
  for (const auto& [letters, kept] : {std::pair{1, 128}, {125, 16}}) {
    CachedPictures pictures;
    const std::string prefix(static_cast<std::size_t>(letters), 'x');
    const auto words = [&](int number) { return prefix + std::to_string(number); };
    for (int number = 100; number < 700; ++number) {
      EXPECT_EQ(pictures.at(words(number)), "");
      EXPECT_EQ(pictures.at(words(number)), words(number) + std::to_string(number - 99));
    }
    EXPECT_NE(pictures.at(words(700 - kept)), "");
    EXPECT_EQ(pictures.made, 600);
    EXPECT_EQ(pictures.at(words(700 - kept - 1)), "");
  }
}

/// An image of 8 by 4 pixels.
struct Image {
  std::vector<std::uint32_t> memory = std::vector<std::uint32_t>(32);
  render::Pixels pixels() { return {memory.data(), 8, 8, 4}; }
};

/// A text at 1, 1 and 3 by 2 pixels large, whose two dots of ink stand right of it.
TEST(KnownGround, TakesATextFromItsPictureWhereThatLooksTheSame) {
  using render::KnownGround;
  constexpr graphics::RGBA light{0, 0, 250, 255}, glass{0, 0, 250, 128};
  constexpr std::uint32_t ground = 0xFF0000FA, dot = 0xFF112233;
  const layout::Rect all{{}, {8, 4}}, frame{{1, 1}, {3, 2}}, left{{}, {3, 4}};
  const auto fill = [](KnownGround& under, const layout::Rect& part, graphics::RGBA color) {
    under.filled(part, color);
    under.fill(part, color);
  };
  const struct {
    const char* name;
    std::function<void(KnownGround&)> before;
    std::string how;
    std::uint32_t ink[2] = {dot, dot}, beside = 0;  ///< what the image shows then
    double x = 1;
  } rows[] = {
      {"on nothing", [](auto&) {}, "copied"},
      {"on a fill", [&](auto& under) { fill(under, all, light); }, "copied", {dot, dot}, ground},
      {"on glass", [&](auto& under) { fill(under, all, glass); }, "", {}},
      {"partly on a fill", [&](auto& under) { fill(under, left, light); }, "", {}},
      {"its ink beside the fill", [&](auto& under) { fill(under, frame, light); }, "", {}},
      {"over a picture",
       [&](auto& under) {
         under.painted({{2, 2}, {9, 1}});
       },
       "",
       {}},
      {"above a picture",
       [&](auto& under) {
         under.painted({{1, 3}, {9, 1}});
       },
       "copied"},
      {"over ink",
       [&](auto& under) {
         under.inkedAround({{5, 1}, {1, 1}});
       },
       "blended",
       {}},
      {"far from ink",
       [&](auto& under) {
         under.inkedAround({{1, 1}, {2, 1}});
       },
       "copied"},
      {"over ink on a fill",
       [&](auto& under) {
         fill(under, all, light);
         under.inkedAround({{5, 1}, {1, 1}});
       },
       "",
       {ground, ground},
       ground},
      {"clipped",
       [](auto& under) {
         under.clip({{}, {5, 4}});
       },
       "copied",
       {dot, 0}},
      {"partly outside", [](auto&) {}, "copied", {0, 0}, 0, -4},
      {"between pixels", [](auto&) {}, "", {}, 0, 1.25},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    render::TextPictures<render::InkPicture> pictures;
    Image image;
    std::string how;
    const auto paint = [&](graphics::RGBA on) {
      Image bare;
      KnownGround(bare.pixels()).fill(all, on);
      bare.memory[8 + 5] = bare.memory[8 + 6] = dot;  // the text is at 2, 0
      return render::InkPicture::cropped(bare.pixels(), {2, 0}, on);
    };
    const auto blend = [&](const auto&, layout::Point) { how = "blended"; };
    for (int time = 0; time < 2; ++time) {  // the second time makes the picture
      image = {};
      KnownGround under(image.pixels());
      row.before(under);
      const render::TextItem item{{{row.x, 1}, frame.size}, textOf("fee")};
      if (under.paint(item, 1, pictures, paint, blend) && how.empty()) how = "copied";
      EXPECT_TRUE(time == 1 || how.empty());
    }
    EXPECT_EQ(how, row.how);
    EXPECT_EQ(image.memory[16 + 4], row.ink[0]);
    EXPECT_EQ(image.memory[16 + 5], row.ink[1]);
    EXPECT_EQ(image.memory[16 + 6], row.beside);
  }
}

TEST(Stroke, IsWholePixelsHighAndAtLeastOne) {
  const text::Stroke stroke{0.125, 0.0625};
  EXPECT_EQ(stroke.rect(2.4, 20.6, 40, 8), (layout::Rect{{2, 41}, {19, 1}}));  // 0.5 px at 41
  EXPECT_EQ(stroke.rect(2.4, 20.6, 40, 32), (layout::Rect{{2, 43}, {19, 2}}));
}

TEST(ShapedText, JoinsTheGlyphsOfARunThatTouch) {
  text::ShapedText<char>::Line line;
  line.add('a', 0, 10, 20);
  line.add('b', 1, 20, 30);
  line.add('c', 0, 20.05, 25);
  line.add('d', 0, 26, 30);
  line.add('e', 0, 0, 10);
  std::vector<std::tuple<std::size_t, double, double>> spans;
  for (const auto& span : line.spans) spans.emplace_back(span.run, span.left, span.right);
  EXPECT_EQ(spans, (decltype(spans){{0, 0, 25}, {1, 20, 30}, {0, 26, 30}}));
}

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
