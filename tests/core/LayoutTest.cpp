#include <algorithm>
#include <sstream>
#include <stdexcept>

#include "QuorixWidgets/localization/ResourceBundle.h"
#include "tests/core/TestWindow.h"
#include "tests/core/Vectors.h"

namespace quorix {
namespace {

using testing::TestWindow;

/// A line of a layout table: a word, its arguments, and the lines indented below it.
struct LayoutLine {
  std::string word;
  std::string text;
  std::map<std::string, std::string> arguments;
  std::vector<LayoutLine> children;

  bool has(const std::string& key) const { return arguments.count(key) > 0; }
  std::optional<double> number(const std::string& key) const {
    return has(key) ? std::optional(std::stod(arguments.at(key))) : std::nullopt;
  }
  double length(const std::string& key) const { return number(key).value_or(0); }
  layout::EdgeInsets insets() const {
    return {length("top"), length("leading"), length("bottom"), length("trailing")};
  }
  layout::Edges edges() const {
    return {has("top"), has("leading"), has("bottom"), has("trailing")};
  }

  layout::Alignment alignment() const {
    using H = layout::HorizontalAlignment;
    using V = layout::VerticalAlignment;
    const std::string name = has("align") ? arguments.at("align") : "";
    return {name.ends_with("leading")    ? H::leading
            : name.ends_with("trailing") ? H::trailing
                                         : H::center,
            name.starts_with("top")      ? V::top
            : name.starts_with("bottom") ? V::bottom
                                         : V::center};
  }

  static LayoutLine parse(std::string line) {
    LayoutLine result;
    if (const auto quote = line.find('"'); quote != std::string::npos) {
      const auto end = line.find('"', quote + 1);
      result.text = line.substr(quote + 1, end - quote - 1);
      line.erase(quote, end - quote + 1);
    }
    std::istringstream words(line);
    words >> result.word;
    for (std::string word; words >> word;) {
      const auto equals = std::min(word.find('='), word.size());
      result.arguments[word.substr(0, equals)] = word.substr(std::min(equals + 1, word.size()));
    }
    return result;
  }

  /// The line at `at`; its children are the lines below it that are indented by two more.
  static LayoutLine readTree(const std::vector<std::string>& lines, std::size_t& at,
                             std::size_t depth = 0) {
    LayoutLine result = parse(lines.at(at++).substr(depth));
    while (lines.at(at).find_first_not_of(' ') == depth + 2) {
      result.children.push_back(readTree(lines, at, depth + 2));
    }
    return result;
  }

  swiftui::View view() const {
    std::vector<swiftui::View> views;
    for (const LayoutLine& child : children) views.push_back(child.view());
    if (word == "row") return swiftui::HStack(alignment().vertical, number("spacing"), views);
    if (word == "column") return swiftui::VStack(alignment().horizontal, number("spacing"), views);
    if (word == "spacer") return swiftui::Spacer(number("min"));
    if (word == "divider") return swiftui::Divider();
    if (word == "empty") return {};
    if (word == "group") return swiftui::Group(views);
    if (word == "image") return swiftui::Image(text, libraryBundle());
    if (word == "text") {
      return swiftui::View(swiftui::Text::verbatim(text))
          .font(swiftui::Font::custom("Face", swiftui::Font::FixedSize{16}));
    }
    const swiftui::View content = views.at(0);
    if (word == "resizable") return content.resizable();
    if (word == "fit") return content.scaledToFit();
    if (word == "border") return content.border(swiftui::Color::black(), length("width"));
    if (word == "background") return content.background(swiftui::Color::black(), edges());
    if (word == "ignoring") return content.edgesIgnoringSafeArea(edges());
    if (word == "frame") return content.frame(number("width"), number("height"), alignment());
    if (word == "widest") return content.frameMaxWidthInfinity(alignment());
    if (word == "overlay") return content.overlay(alignment(), views.at(1));
    if (word == "fixed") return content.fixedSize(has("h"), has("v"));
    if (word == "padding") {
      return has("all") ? content.padding(length("all")) : content.padding(insets());
    }
    throw std::invalid_argument("no element is called " + word);
  }
};

/// A case of a layout table: a view of plain elements in a window, and its expected items.
///
///     == what the case shows
///     in 200 x 40 scale=2 rtl top=10   scale, direction, larger text and the safe area's insets
///                                      (top, leading, bottom, trailing) may be left out
///     row spacing=10                   children are indented by two
///       text "aaaa bb"                 16 points: 8 wide a character, 20 high a line
///       spacer
///     expect
///     text 0 10 56 20 "aaaa bb"        the painted items, in order
///     fits none x inf -> inf x 20      the view's size for that proposal
struct LayoutCase {
  std::string name;
  layout::Size window;
  LayoutLine settings;
  swiftui::View view;
  std::string expected;

  LayoutCase(const std::vector<std::string>& lines, std::size_t& at) : name(lines.at(at++)) {
    std::string by;
    std::istringstream(lines.at(at).substr(3)) >> window.width >> by >> window.height;
    settings = LayoutLine::parse(lines.at(at++));
    view = LayoutLine::readTree(lines, at).view();
    EXPECT_EQ(lines.at(at++), "expect") << name;
    for (; at < lines.size() && !lines[at].starts_with("=="); ++at) {
      if (!lines[at].empty()) expected += lines[at] + "\n";
    }
  }

  swiftui::Environment environment() const {
    using Direction = layout::LayoutDirection;
    swiftui::Environment result;
    result.scale = settings.number("scale").value_or(1);
    if (settings.has("larger")) result.textSize = swiftui::ContentSizeCategory::extraLarge;
    result.direction = settings.has("rtl") ? Direction::rightToLeft : Direction::leftToRight;
    return result;
  }
};

std::optional<double> readLength(const std::string& word) {
  if (word == "none") return std::nullopt;
  return word == "inf" ? layout::infinity : std::stod(word);
}

/// The sizes for the proposals in `expected`.
std::string printedAnswers(TestWindow& window, const std::string& expected) {
  std::istringstream lines(expected);
  std::ostringstream result;
  for (std::string line; std::getline(lines, line);) {
    std::istringstream words(line);
    std::string fits, width, by, height;
    words >> fits >> width >> by >> height;
    if (fits != "fits") continue;
    const auto size = window.host->sizeThatFits({readLength(width), readLength(height)});
    result << "fits " << width << " x " << height << " -> " << size.width << " x " << size.height
           << '\n';
  }
  return result.str();
}

TEST(Layout, GivesTheFramesOfTheTables) {
  for (const std::string table :
       {"stacks", "frames", "texts", "pixels", "directions", "words", "grounds"}) {
    const auto lines = readLines("layout/" + table);
    EXPECT_FALSE(lines.empty()) << table;
    for (std::size_t at = 0; at < lines.size();) {
      const LayoutCase row(lines, at);
      TestWindow window(row.view, row.environment(), row.window);
      const render::Scene& scene = window.host->scene(row.window, row.settings.insets());
      EXPECT_EQ(testing::printedItems(scene) + printedAnswers(window, row.expected), row.expected)
          << row.name;
    }
  }
}

TEST(PixelGrid, LeavesNoSeamAndLosesNoHairline) {
  for (const double scale : {1.0, 1.25, 1.5, 2.0, 3.0}) {
    const layout::PixelGrid grid(scale);
    const double pixel = grid.pixel();
    for (int i = -400; i < 400; ++i) {
      // Positions at halves and thirds of a point, and just beside them.
      const double top = i / 12.0 + (i % 3 - 1) * 1e-12;
      const layout::Rect line = grid.round(layout::Rect{{0, top}, {10, pixel}});
      const layout::Rect below = grid.round(layout::Rect{{0, top + pixel}, {10, 7}});
      EXPECT_NEAR(line.size.height, pixel, 1e-9) << top << " at scale " << scale;
      EXPECT_DOUBLE_EQ(line.bottom(), below.top()) << top << " at scale " << scale;
    }
  }
}

}  // namespace
}  // namespace quorix
