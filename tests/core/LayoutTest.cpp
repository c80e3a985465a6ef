#include <gtest/gtest.h>

#include <sstream>

#include "platform/layout/Geometry.h"
#include "tests/core/LayoutCase.h"
#include "tests/core/TestWindow.h"

namespace quorix {
namespace {

using layout::ProposedSize;
using testing::FixedWidthText;
using testing::LayoutCase;
using testing::printedItems;
using testing::TestWindow;

std::optional<double> readLength(const std::string& word) {
  if (word == "none") return std::nullopt;
  return word == "inf" ? layout::infinity : std::stod(word);
}

std::string printed(double length) {
  std::ostringstream text;
  text << length;
  return text.str();
}

/// The answers to the proposals that `expected` names.
std::string printedAnswers(TestWindow& window, const std::string& expected) {
  std::istringstream lines(expected);
  std::string result;
  for (std::string line; std::getline(lines, line);) {
    std::istringstream words(line);
    std::string fits, width, by, height;
    words >> fits >> width >> by >> height;
    if (fits != "fits") continue;
    const auto size = window.host->sizeThatFits({readLength(width), readLength(height)});
    result += "fits " + width + " x " + height + " -> " + printed(size.width) + " x " +
              printed(size.height) + "\n";
  }
  return result;
}

TEST(Layout, GivesTheFramesOfTheTables) {
  for (const char* table :
       {"stacks", "frames", "texts", "pixels", "directions", "words", "grounds"}) {
    const auto cases = LayoutCase::read(TEST_DATA "/layout/" + std::string(table) + ".txt");
    EXPECT_FALSE(cases.empty()) << table;
    for (const LayoutCase& row : cases) {
      TestWindow window(row.view, row.environment, row.window);
      const render::Scene& scene = window.host->scene(row.window, row.safeArea);
      EXPECT_EQ(printedItems(scene) + printedAnswers(window, row.expected), row.expected)
          << row.name;
    }
  }
}

TEST(PixelGrid, LeavesNoSeamAndLosesNoHairline) {
  for (const double scale : {1.0, 1.25, 1.5, 2.0, 3.0}) {
    const layout::PixelGrid grid(scale);
    const double pixel = grid.pixel();
    for (int i = -400; i < 400; ++i) {
      // Every place that halving and thirding reach, also just beside it.
      const double top = i / 12.0 + (i % 3 - 1) * 1e-12;
      const layout::Rect line = grid.round(layout::Rect{{0, top}, {10, pixel}});
      const layout::Rect below = grid.round(layout::Rect{{0, top + pixel}, {10, 7}});
      EXPECT_NEAR(line.size.height, pixel, 1e-9) << top << " at scale " << scale;
      EXPECT_DOUBLE_EQ(line.bottom(), below.top()) << top << " at scale " << scale;
    }
  }
}

/// However it is squeezed, a text is as large as it was measured for its width.
TEST(Layout, NeverCutsAText) {
  const auto view = swiftui::HStack(
      layout::VerticalAlignment::center, 12,
      {swiftui::Text::verbatim("aaa bbb cccc"), swiftui::Spacer(),
       swiftui::VStack(layout::HorizontalAlignment::center, std::nullopt,
                       {swiftui::Text::verbatim("dd ee"), swiftui::Text::verbatim("f")})});
  for (double width = 0; width < 300; width += 3.5) {
    TestWindow window(view, {}, {width, 5});
    for (const render::Item& item : window.shown().items) {
      const auto& text = std::get<render::TextItem>(item);
      FixedWidthText anew;
      const layout::Size needed = anew.measure(text.text, text.frame.size.width).size;
      EXPECT_LE(needed.width, text.frame.size.width + 1e-6) << text.text.runs[0].text << width;
      EXPECT_LE(needed.height, text.frame.size.height + 1e-6) << text.text.runs[0].text << width;
    }
  }
}

}  // namespace
}  // namespace quorix
