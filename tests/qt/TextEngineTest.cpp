#include <gtest/gtest.h>

#include "qt/text/QtTextEngine.h"
#include "tests/qt/Texts.h"

namespace quorix::qt {
namespace {

using layout::LayoutDirection;
using testing::plainText;
using text::AttributedText;
using text::TextMetrics;

/// Letters that extend beyond their right edge, in the machine's own face.
AttributedText overhanging() {
  AttributedText text =
      plainText("if of stuff off puff fluffy wolf elf self cliff chef thief roof");
  text.runs[0].font.name.clear();
  return text;
}

TEST(TextEngine, NarrowerIsNeverLowerAndBreaksTheSameWhenPainted) {
  const std::string words =
      "Your fee is based on how often you return, and falls as you keep more.";
  const std::pair<const char*, AttributedText> samples[] = {
      {"fractional_size", plainText(words, 15.68)},
      {"long_word",
       plainText("An uncharacteristically-hyphenated Donaudampfschifffahrtsgesellschaft!")},
      {"two_paragraphs", plainText("First paragraph\nand the second\r\n\nlast")},
      {"spaces", plainText("  led   by  spaces  ")},
      {"arabic", plainText("رسوم الإرجاع الخاصة بك تعتمد على معدل الإرجاع", 16,
                           LayoutDirection::rightToLeft)},
      {"mixed", plainText("رسوم 3.45 EUR for المتجر Shop", 14, LayoutDirection::rightToLeft)},
      {"emoji", plainText("Keep 😀👩‍👩‍👧 it 🇪🇸 up", 14)},
      {"overhanging", overhanging()},
      {"two_runs", testing::linkedText("Fees follow your habits. ", "Read more about returns")},
  };
  for (const auto& [name, text] : samples) {
    SCOPED_TRACE(name);
    QtTextEngine engine;
    TextMetrics wider = engine.measure(text, layout::infinity);
    for (double width = wider.size.width + 5; width >= 0; width -= 1.3) {
      const TextMetrics metrics = engine.measure(text, width);
      EXPECT_GE(metrics.size.height, wider.size.height - 1e-6) << width;
      wider = metrics;
      const bool holdsAnyLetter = width > 60;
      if (!holdsAnyLetter) continue;
      EXPECT_LE(metrics.size.width, width);
      // Painting at the measured width must give the measured lines. Uses a second engine, so that
      // the first one's cache has no effect.
      QtTextEngine painting;
      const auto& painted = painting.shape(text, metrics.size.width);
      EXPECT_EQ(painted.metrics, metrics) << width;
    }
  }
}

TEST(TextEngine, AnEmptyTextHasALineAndNoWidth) {
  QtTextEngine engine;
  const TextMetrics line = engine.measure(plainText("x"), layout::infinity);
  for (const double width : {0.0, 100.0, layout::infinity}) {
    EXPECT_EQ(engine.measure(plainText(""), width).size, (layout::Size{0, line.size.height}));
  }
  EXPECT_GT(engine.measure({}, 100).size.height, 0);
}

TEST(TextEngine, TheLongestWordMayStandInAnyParagraph) {
  QtTextEngine engine;
  const double word = engine.leastWidth(plainText("手数料"));
  EXPECT_GT(word, 0);
  for (const char* lines : {"x\n手数料", "手数料\nx"}) {
    EXPECT_EQ(engine.leastWidth(plainText(lines)), word) << lines;
  }
}

/// Qt keeps "7,00" together with a character that this face lacks. The line's height must not come
/// from another face.
TEST(TextEngine, APriceIsAsHighAsItsFace) {
  QtTextEngine engine;
  const auto shaped = [&](const char* characters) {
    AttributedText text = plainText(characters);
    text.runs[0].font.name = "Noto Sans Devanagari";
    return engine.shape(text, layout::infinity);
  };
  const ShapedText price = shaped("7,00"), number = shaped("700");
  EXPECT_EQ(price.metrics.size.height, number.metrics.size.height);
  EXPECT_EQ(price.lines[0].baseline, number.lines[0].baseline);
}

TEST(TextEngine, PaintsWhatItMeasuredWithoutShapingAgain) {
  QtTextEngine engine;
  AttributedText text = plainText("Your return fee");
  const TextMetrics natural = engine.measure(text, layout::infinity);
  engine.measure(text, 300);
  text.runs[0].color = {200, 0, 0, 255};
  text.runs[0].underline = true;
  engine.shape(text, natural.size.width);
  EXPECT_EQ(engine.breaks(), 1);

  const TextMetrics wrapped = engine.measure(text, natural.size.width / 2);
  engine.shape(text, wrapped.size.width);
  EXPECT_EQ(engine.breaks(), 2);
}

/// After a few prices the engine has learned a face and sets texts itself. The result must equal
/// Qt's.
TEST(TextEngine, SetsPricesAsQtShapesThem) {
  const std::string own = plainText("").runs[0].font.name;
  // The first face kerns pairs of digits; the last one has ink outside its line.
  const std::string faces[] = {own, "DejaVu Sans", "DejaVu Sans Mono", "NotoSansDisplay-Italic"};
  const char* const prices[] = {"€7.00", "$1,607,117.71", "£389.47", "12,56\u00A0€", "1.2"};
  for (const std::string& face : faces) {
    const auto text = [&](const std::string& price, double points) {
      AttributedText made = plainText(price, points);
      made.runs[0].font.name = face;
      return made;
    };
    QtTextEngine learned;
    for (int price = 0; price < 16; ++price) {
      learned.measure(text(std::to_string(price), 14), layout::infinity);
    }
    const int breaks = learned.breaks();
    for (const std::string price : prices) {
      for (const double points : {11.0, 15.68}) {
        SCOPED_TRACE(price + " in " + face);
        QtTextEngine shaping;
        const ShapedText& wanted = shaping.shape(text(price, points), layout::infinity);
        const ShapedText& set = learned.shape(text(price, points), layout::infinity);
        EXPECT_EQ(set.metrics, wanted.metrics);
        EXPECT_EQ(set.lines[0].baseline, wanted.lines[0].baseline);
        EXPECT_EQ(set.lines[0].advance, wanted.lines[0].advance);
        const QGlyphRun &glyphs = set.lines[0].pieces[0].glyphs,
                        qts = wanted.lines[0].pieces[0].glyphs;
        EXPECT_EQ(glyphs.glyphIndexes(), qts.glyphIndexes());
        EXPECT_EQ(glyphs.positions(), qts.positions());
        EXPECT_EQ(glyphs.rawFont(), qts.rawFont());
      }
    }
    // Qt still shapes the last price, because of the joiner that keeps it together.
    EXPECT_TRUE(face != own || learned.breaks() == breaks + 2);
  }
}

}  // namespace
}  // namespace quorix::qt
