#include <unicode/unistr.h>

#include <algorithm>
#include <cmath>

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

TEST(Stroke, IsWholePixelsHighAndAtLeastOne) {
  const text::Stroke stroke{0.125, 0.0625};
  const struct {
    double left, right, baseline, em;
    layout::Rect expected;
  } rows[] = {
      {2.4, 20.6, 40, 8, {{2, 41}, {19, 1}}},  // 0.5 px at 41
      {2.4, 20.6, 40, 32, {{2, 43}, {19, 2}}},
      {10.5 - 1e-12, 20.5, -41, 8, {{11, -40}, {10, 1}}},  // halves are rounded up
      {-10.5, 0.5, 40 - 1e-12, 8, {{-10, 41}, {11, 1}}},
  };
  for (const auto& [left, right, baseline, em, expected] : rows) {
    EXPECT_EQ(stroke.rect(left, right, baseline, em), expected) << left << " at " << baseline;
  }
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

using Glyphs = std::vector<PriceGlyphs::Glyph>;

/// A face as its shaper sees it: a glyph and its advance by its neighbors, 0 at a text's ends.
struct Face {
  std::function<std::uint32_t(char16_t before, char16_t character)> glyph =
      [](char16_t, char16_t character) { return character; };
  std::function<double(char16_t before, char16_t character, char16_t after)> advance =
      [](char16_t, char16_t, char16_t) { return 10; };
  std::size_t more = 0;  ///< glyphs than characters

  Glyphs shape(const std::string& utf8) const {
    const auto text = icu::UnicodeString::fromUTF8(utf8);
    Glyphs shaped;
    double x = 0;
    for (int i = 0; i < text.length(); ++i) {
      const char16_t before = i > 0 ? text[i - 1] : u'\0';
      shaped.push_back({glyph(before, text[i]), x, advance(0, text[i], 0)});
      x += advance(before, text[i], i + 1 < text.length() ? text[i + 1] : u'\0');
    }
    shaped.resize(shaped.size() + more);
    return shaped;
  }

  /// The sixteenth price in this face, at twice the size of the samples.
  std::optional<text::ShapedText<Glyphs>> set(const std::string& price) const {
    text::PriceFaces<Glyphs> faces(7);
    const auto learn = [&](const AttributedText& sample, Glyphs& glyphs) {
      glyphs = shape(sample.runs[0].text);
      return text::ShapedText<Glyphs>{{{0, 12}}, 1, {{9, 0, {{glyphs, 0}}, {}}}};
    };
    const auto make = [](const Glyphs&, const Glyphs& glyphs) { return glyphs; };
    for (int time = 1; time < 16; ++time) EXPECT_FALSE(faces.set(textOf(price), 2, learn, make));
    return faces.set(textOf(price), 2, learn, make);
  }
};

TEST(PriceFaces, SetPricesOnly) {
  const Face face;
  EXPECT_TRUE(face.set("€1,234.56"));
  for (const char* other : {"x1", "1x", "1 x", "1\u20601", "−1"}) EXPECT_FALSE(face.set(other));
}

TEST(PriceFaces, OfMoreRulesAreNotLearned) {
  Face joins, spaces, spacesBack, splits;
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
  splits.more = 1;
  for (const Face& face : {joins, spaces, spacesBack, splits}) EXPECT_FALSE(face.set("7"));
}

TEST(PriceGlyphs, AreOfATextInOneRun) {
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
