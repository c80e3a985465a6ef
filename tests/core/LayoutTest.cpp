#include <fstream>
#include <map>
#include <sstream>
#include <stdexcept>

#include "QuorixWidgets/localization/ResourceBundle.h"
#include "platform/layout/Geometry.h"
#include "platform/swiftui/Elements.h"
#include "tests/core/TestWindow.h"

namespace quorix {
namespace {

using testing::TestWindow;

/// A case of a layout table: what a view of plain elements looks like in a window.
///
///     == what the case shows
///     in 200 x 40 scale 2 rtl safe 0 10 0 10
///                                      scale, direction and the safe area's insets (top, leading,
///                                      bottom, trailing) may be left out
///     row spacing=10                   children are indented by two
///       text "aaaa bb"                 16 points: 8 wide a character, 20 high a line
///       spacer
///     expect
///     text 0 10 56 20 "aaaa bb"        the items painted, in order
///     fits none x inf -> inf x 20      what the view answers when offered that
struct LayoutCase {
  std::string name;
  layout::Size window;
  swiftui::Environment environment;
  layout::EdgeInsets safeArea;
  swiftui::View view;
  std::string expected;
};

/// A line of a case's view: a word, its arguments and what is indented below it.
struct LayoutLine {
  std::string word;
  std::string text;
  std::map<std::string, std::string> arguments;
  std::vector<LayoutLine> children;

  std::optional<double> number(const std::string& key) const {
    const auto found = arguments.find(key);
    return found == arguments.end() ? std::nullopt : std::optional(std::stod(found->second));
  }
  double length(const std::string& key) const { return number(key).value_or(0); }

  layout::Alignment alignment() const {
    using H = layout::HorizontalAlignment;
    using V = layout::VerticalAlignment;
    const auto found = arguments.find("align");
    const std::string name = found == arguments.end() ? "" : found->second;
    const auto has = [&](const char* part) { return name.find(part) != std::string::npos; };
    return {has("leading")    ? H::leading
            : has("trailing") ? H::trailing
                              : H::center,
            has("top")      ? V::top
            : has("bottom") ? V::bottom
                            : V::center};
  }

  layout::Edges edges() const {
    const auto has = [&](const char* name) { return arguments.count(name) > 0; };
    return {has("top"), has("leading"), has("bottom"), has("trailing")};
  }

  /// The lines from `at` on that are indented by `depth` or more, as a tree.
  static std::vector<LayoutLine> readTree(const std::vector<std::string>& lines, std::size_t& at,
                                          std::size_t depth) {
    std::vector<LayoutLine> result;
    while (at < lines.size() && lines[at].find_first_not_of(' ') == depth) {
      result.push_back(readLine(lines[at++].substr(depth)));
      result.back().children = readTree(lines, at, depth + 2);
    }
    return result;
  }

  static LayoutLine readLine(std::string line) {
    LayoutLine result;
    if (const auto quote = line.find('"'); quote != std::string::npos) {
      const auto end = line.find('"', quote + 1);
      result.text = line.substr(quote + 1, end - quote - 1);
      line.erase(quote, end - quote + 1);
    }
    std::istringstream words(line);
    words >> result.word;
    for (std::string word; words >> word;) {
      const auto equals = word.find('=');
      result.arguments[word.substr(0, equals)] =
          equals == std::string::npos ? "" : word.substr(equals + 1);
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
    if (word == "fixed") return content.fixedSize(arguments.count("h"), arguments.count("v"));
    if (word == "padding") {
      if (number("all")) return content.padding(length("all"));
      return content.padding(
          {length("top"), length("leading"), length("bottom"), length("trailing")});
    }
    throw std::invalid_argument("no element is called " + word);
  }
};

std::vector<LayoutCase> readCases(const std::string& path) {
  std::ifstream file(path);
  if (!file) throw std::runtime_error("cannot read " + path);
  std::vector<LayoutCase> cases;
  std::vector<std::string> lines;
  bool expecting = false;
  for (std::string line; std::getline(file, line);) {
    if (line.rfind("==", 0) == 0) {
      cases.emplace_back().name = line.substr(3);
      lines.clear();
      expecting = false;
    } else if (line.rfind("in ", 0) == 0) {
      std::istringstream words(line.substr(3));
      std::string word;
      words >> cases.back().window.width >> word >> cases.back().window.height;
      while (words >> word) {
        if (word == "scale") words >> cases.back().environment.scale;
        if (word == "safe") {
          auto& [top, leading, bottom, trailing] = cases.back().safeArea;
          words >> top >> leading >> bottom >> trailing;
        }
        if (word == "rtl") {
          cases.back().environment.direction = layout::LayoutDirection::rightToLeft;
        }
      }
    } else if (line == "expect") {
      std::size_t at = 0;
      const auto tree = LayoutLine::readTree(lines, at, 0);
      if (tree.size() != 1 || at != lines.size()) throw std::invalid_argument(cases.back().name);
      cases.back().view = tree.front().view();
      expecting = true;
    } else if (!line.empty() && line[0] != '#') {
      expecting ? void(cases.back().expected += line + "\n") : lines.push_back(line);
    }
  }
  return cases;
}

std::optional<double> readLength(const std::string& word) {
  if (word == "none") return std::nullopt;
  return word == "inf" ? layout::infinity : std::stod(word);
}

/// The answers to the proposals that `expected` names.
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
  for (const char* table :
       {"stacks", "frames", "texts", "pixels", "directions", "words", "grounds"}) {
    const auto cases = readCases(TEST_DATA "/layout/" + std::string(table) + ".txt");
    EXPECT_FALSE(cases.empty()) << table;
    for (const LayoutCase& row : cases) {
      TestWindow window(row.view, row.environment, row.window);
      const render::Scene& scene = window.host->scene(row.window, row.safeArea);
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
      testing::FixedWidthText anew;
      const layout::Size needed = anew.measure(text.text, text.frame.size.width).size;
      EXPECT_LE(needed.width, text.frame.size.width + 1e-6) << text.text.runs[0].text << width;
      EXPECT_LE(needed.height, text.frame.size.height + 1e-6) << text.text.runs[0].text << width;
    }
  }
}

}  // namespace
}  // namespace quorix
