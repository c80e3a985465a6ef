#include <unicode/uvernum.h>

#include <algorithm>

#include "QuorixWidgets/score/ScoreWidgetViewModel.h"
#include "qt/text/QtTextEngine.h"
#include "tests/qt/Pixels.h"
#include "tools/quorix/gallery/CellRendering.h"

namespace quorix::gallery {
namespace {

constexpr double touching = 0.51;  // points: half a pixel's rounding
constexpr double noise = 1.0 / 16;

qt::QtTextEngine& engine() { return qt::QtTextEngine::shared(); }

std::string words(const render::TextItem& item) {
  std::string all;
  for (const text::Run& run : item.text.runs) all += run.text;
  return all;
}

bool overlap(const layout::Rect& one, const layout::Rect& other) {
  const layout::Size both = intersection(one, other).size;
  return both.width > touching && both.height > touching;
}

/// The visible part of the cell's widget: a sheet's panel, or the whole view.
layout::Rect visible(const render::Scene& scene) {
  layout::Rect area{{}, scene.size};
  for (const render::Item& item : scene.items) {
    const auto* fill = std::get_if<render::FillItem>(&item);
    if (fill && fill->topCornerRadius > 0) area = fill->frame;
  }
  return area;
}

std::vector<std::string> figuresOf(const Language& language, const std::string& name) {
  const TokenData token{0.82, std::string(language.currency), language.fee, language.reducedFee};
  const ScoreWidgetViewModel model("gallery", token, name, {{}, {}});
  return {model.baseReturnFee.get(), model.reducedReturnFee.get(), model.returnRate.get()};
}

/// The glyphs of a figure and their positions. They are the same on every page, unless the figure
/// was reordered.
std::vector<std::pair<QList<quint32>, QList<QPointF>>> glyphs(text::AttributedText text,
                                                              layout::LayoutDirection direction) {
  text.direction = direction;
  std::vector<std::pair<QList<quint32>, QList<QPointF>>> result;
  const qt::ShapedText shaped = engine().shape(text, layout::infinity);
  for (const auto& piece : shaped.lines.at(0).pieces) {
    result.emplace_back(piece.glyphs.glyphIndexes(), piece.glyphs.positions());
  }
  return result;
}

void expectWhole(const render::TextItem& text, const layout::Rect& area, bool large) {
  SCOPED_TRACE(words(text));
  const layout::Rect& frame = text.frame;
  EXPECT_GE(frame.left(), area.left() - touching);
  EXPECT_GE(frame.top(), area.top() - touching);
  EXPECT_LE(frame.right(), area.right() + touching);
  EXPECT_TRUE(large || frame.bottom() <= area.bottom() + touching);
  const text::TextMetrics metrics = engine().measure(text.text, frame.size.width + noise);
  EXPECT_LE(metrics.size.width, frame.size.width + noise);
  EXPECT_LE(metrics.size.height, frame.size.height + noise);
  EXPECT_TRUE(large || engine().leastWidth(text.text) <= frame.size.width + touching)
      << "a word breaks";
}

void expectFigure(const render::TextItem& text) {
  SCOPED_TRACE(words(text));
  EXPECT_EQ(engine().shape(text.text, text.frame.size.width + noise).lines.size(), 1);
  EXPECT_GE(text.text.runs[0].font.points, 9) << "too small to read";
  EXPECT_EQ(glyphs(text.text, leftToRight), glyphs(text.text, rightToLeft)) << "reordered";
}

/// Checks all screens of one language: nothing is cut off or overlaps, no word breaks (except in a
/// sheet that scrolls because of the largest text size), and every figure is on one line in its own
/// order, with the old price struck through.
class EveryScreen : public ::testing::TestWithParam<std::string> {};

std::vector<std::string> languageNames() {
  std::vector<std::string> names;
  for (const auto& language : languages) names.emplace_back(language.name);
  return names;
}

TEST_P(EveryScreen, ShowsEverythingWhole) {
  const auto all = cells({.language = GetParam()});
  const auto figures = figuresOf(all.at(0).language->value, GetParam());
  for (const Cell& cell : all) {
    SCOPED_TRACE(cell.names());
    const qt::StillScene still = gallery::render(cell, 1).still;
    const render::Scene& scene = still.topmost();
    std::vector<layout::Rect> taken;
    std::vector<std::string> seen;
    for (const render::Item& item : scene.items) {
      const auto* text = std::get_if<render::TextItem>(&item);
      const auto* image = std::get_if<render::ImageItem>(&item);
      if (!text && !image) continue;
      const layout::Rect& frame = text ? text->frame : image->frame;
      for (const layout::Rect& other : taken) EXPECT_FALSE(overlap(frame, other));
      taken.push_back(frame);
      if (!text) continue;
      const bool large = cell.textSize->value > swiftui::ContentSizeCategory::large;
      expectWhole(*text, visible(scene), large && cell.widget->value == Widget::sheet);
      if (std::ranges::find(figures, words(*text)) == figures.end()) continue;
      expectFigure(*text);
      EXPECT_EQ(text->text.runs[0].strikethrough, words(*text) == figures[0]);
      seen.push_back(words(*text));
    }
    const bool isScore = cell.widget->value == Widget::row || cell.widget->value == Widget::sheet;
    EXPECT_EQ(seen.size(), !isScore ? 0 : cell.widget->value == Widget::row ? 2 : 3);
    EXPECT_GE(taken.size(), cell.widget->value == Widget::imperativeInfo ? 2 : 1);
  }
}

INSTANTIATE_TEST_SUITE_P(Matrix, EveryScreen, ::testing::ValuesIn(languageNames()),
                         [](const auto& tested) { return tested.param; });

/// Reference pictures of a few rows, for what no rule above can check, such as the side of a price
/// on which its currency is. Newer locale data writes Arabic prices in Latin digits.
TEST(MatrixPicture, LooksAsItDid) {
  for (const std::string language : {"es", "ar"}) {
    const char* data = language == "ar" && U_ICU_VERSION_MAJOR_NUM >= 76 ? "-icu76" : "";
    for (const char* textSize : {"default", "accessibility"}) {
      const Selection rows{.widget = "row",
                           .language = language,
                           .appearance = "light",
                           .textSize = textSize,
                           .screen = "320"};
      for (const Cell& cell : cells(rows)) {
        const QImage image = picture(gallery::render(cell, 1), 1);
        EXPECT_TRUE(testing::matchesPicture(image, QString::fromStdString(cell.names() + data)));
      }
    }
  }
}

}  // namespace
}  // namespace quorix::gallery
