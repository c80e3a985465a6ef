#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "platform/render/TextPictures.h"
#include "platform/text/LineCache.h"
#include "platform/text/TextEngine.h"

namespace quorix {
namespace {

using layout::infinity;
using text::AttributedText;

AttributedText textOf(const std::string& words, double points = 14) {
  return {{text::Run{words, {"Face", points}, {}}}};
}

/// Lines of letters that are 10 points wide each.
struct Letters {
  text::TextMetrics metrics;
  bool hasGlyphs = false;
};

struct CachedLetters {
  text::LineCache<Letters> cache;
  std::string broken;  ///< the widths to which texts were broken, "!" after those with glyphs

  Letters at(double width, bool toPaint, const AttributedText& text = textOf("seven..")) {
    return cache.lines(text, width, toPaint, [&](const auto& unknown, double to, bool glyphs) {
      broken +=
          (to == infinity ? "natural" : std::to_string(std::lround(to))) + (glyphs ? "! " : " ");
      const double natural = 10 * static_cast<double>(unknown.runs[0].text.size());
      return Letters{{{std::min(natural, std::floor(to / 10) * 10), 20}}, glyphs};
    });
  }
};

TEST(LineCache, BreaksATextOnceForAllWidthsThatBreakItAlike) {
  AttributedText red = textOf("seven.."), large = textOf("seven..", 15), arabic = red;
  red.runs[0].color = {200, 0, 0, 255};
  red.runs[0].underline = true;
  arabic.direction = layout::LayoutDirection::rightToLeft;
  AttributedText named = large;
  named.runs[0].font.name = "Other";
  const AttributedText text = textOf("seven..");
  struct Call {
    double width;
    bool toPaint;
    AttributedText text;
  };
  const struct {
    const char* name;
    std::vector<Call> calls;
    const char* broken;
    double width;  ///< of the last
  } rows[] = {
      {"wide enough", {{300, true, text}, {70, true, text}}, "natural! ", 70},
      {"narrower", {{69, true, text}, {65, true, text}, {60, true, text}}, "natural! 69! ", 60},
      {"narrower than the widest line",
       {{69, true, text}, {59, true, text}},
       "natural! 69! 59! ",
       50},
      {"wider than broken to", {{59, true, text}, {61, true, text}}, "natural! 59! 61! ", 60},
      {"first without glyphs", {{65, false, text}, {60, true, text}}, "natural 65 65! ", 60},
      {"with glyphs at first", {{65, true, text}, {60, false, text}}, "natural! 65! ", 60},
      {"another color", {{70, true, text}, {70, true, red}}, "natural! ", 70},
      {"another size, face, direction",
       {{70, true, text}, {70, true, large}, {70, true, named}, {70, true, arabic}},
       "natural! natural! natural! natural! ",
       70},
      {"many widths, the oldest but the natural is dropped",
       {{60, true, text},
        {50, true, text},
        {40, true, text},
        {30, true, text},
        {300, true, text},
        {50, true, text},
        {60, true, text}},
       "natural! 60! 50! 40! 30! 60! ",
       60},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    CachedLetters letters;
    Letters last;
    for (const Call& call : row.calls) last = letters.at(call.width, call.toPaint, call.text);
    EXPECT_EQ(last.metrics.size.width, row.width);
    EXPECT_EQ(last.hasGlyphs, true);
    EXPECT_EQ(letters.broken, row.broken);
  }
}

TEST(LineCache, KeepsTheTextsThatWereUsedLast) {
  CachedLetters letters;
  int measured = 0;
  const auto leastWidth = [&](const std::string& words) {
    return letters.cache.leastWidth(textOf(words), [&](const AttributedText& text) {
      ++measured;
      return static_cast<double>(text.runs[0].text.size());
    });
  };
  for (int number = 0; number < 1000; ++number) {
    const std::string words(static_cast<std::size_t>(number) + 1, 'x');
    EXPECT_EQ(letters.at(infinity, true, textOf(words)).metrics.size.width, 10 * (number + 1));
    EXPECT_EQ(leastWidth(words), number + 1);
    EXPECT_EQ(leastWidth("x"), 1);  // so it stays
  }
  EXPECT_EQ(measured, 1000);
  leastWidth(std::string(1000, 'x'));
  leastWidth(std::string(900, 'x'));
  EXPECT_EQ(measured, 1000);
  leastWidth(std::string(700, 'x'));
  EXPECT_EQ(measured, 1001);
  letters.cache.clear();
  leastWidth("x");
  EXPECT_EQ(measured, 1002);
}

struct CountedPicture {
  std::string of;
  std::size_t bytes() const { return of.size() * 1000; }
};

struct CachedPictures {
  render::TextPictures<CountedPicture> cache;
  int made = 0;

  /// What is found: empty if there is no picture.
  std::string at(const std::string& words, double width = 100, double scale = 3,
                 graphics::RGBA ground = {0, 0, 0, 0}, graphics::RGBA color = {}) {
    AttributedText text = textOf(words);
    text.runs[0].color = color;
    const auto* found = cache.find({{{}, {width, 20}}, text}, scale, ground, [&] {
      ++made;
      return CountedPicture{words + std::to_string(made)};
    });
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
    EXPECT_EQ(pictures.at("tax"), seen ? "tax7" : "");
  }
  pictures.cache.clear();
  EXPECT_EQ(pictures.at("fee"), "");
}

/// The cache keeps to its bounds: any number of texts neither exceeds them nor gets a wrong
/// picture.
TEST(TextPictures, KeepTheLatestOnly) {
  // 200 small pictures, and 20 of which 16 fit.
  for (const auto& [count, letters, kept] : {std::tuple{200, 1, 128}, {20, 125, 16}}) {
    CachedPictures pictures;
    const auto words = [letters = letters](int number) {
      return std::string(static_cast<std::size_t>(letters), 'x') + std::to_string(number) + " ";
    };
    for (int number = 0; number < count; ++number) {
      EXPECT_EQ(pictures.at(words(number)), "");
      EXPECT_EQ(pictures.at(words(number)), words(number) + std::to_string(number + 1));
    }
    for (int number = count - kept; number < count; ++number) {
      EXPECT_NE(pictures.at(words(number)), "") << number;
    }
    EXPECT_EQ(pictures.made, count);
    EXPECT_EQ(pictures.at(words(count - kept - 1)), "");
  }
}

}  // namespace
}  // namespace quorix
