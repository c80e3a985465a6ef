#include "platform/swiftui/Environment.h"
#include "tests/core/TestWindow.h"
#include "tests/core/Vectors.h"

namespace quorix {
namespace {

using swiftui::ContentSizeCategory;
using swiftui::Font;
using swiftui::Text;
using swiftui::TextStyle;
using swiftui::View;
using testing::TestWindow;

const auto last = ContentSizeCategory::accessibilityExtraExtraExtraLarge;

/// A font's size as it reaches the text engine.
TEST(ContentSizeCategory, ReachesScalingFontsOnly) {
  const Font relative = Font::custom("F", 11, TextStyle::caption2);
  const struct {
    Font font;
    ContentSizeCategory category;
    double points;
  } rows[] = {
      {Font::custom("F", Font::FixedSize{14}), last, 14},
      {Font::custom("F", 34), last, 106},  // as the body style: 53 of 17
      {Font::custom("F", 34), ContentSizeCategory::extraSmall, 28},
      {relative, ContentSizeCategory::extraSmall, 11},
      {relative, last, 40},
      {Font(), ContentSizeCategory::extraLarge, 19},
  };
  for (const auto& row : rows) {
    swiftui::Environment environment;
    environment.textSize = row.category;
    TestWindow window(View(Text::verbatim("x")).font(row.font), environment);
    const auto& item = std::get<render::TextItem>(window.shown().items.at(0));
    EXPECT_DOUBLE_EQ(item.text.runs.at(0).font.points, row.points);
  }
}

TEST(ContentSizeCategory, IsTheOneNearestToADesktopsFactor) {
  const std::pair<double, std::string_view> rows[] = {{0.5, "extraSmall"},
                                                      {0.9, "small"},
                                                      {1, "large"},
                                                      {1.25, "extraExtraLarge"},
                                                      {2, "accessibilityLarge"},
                                                      {2.9, "accessibilityExtraExtraLarge"},
                                                      {3, "accessibilityExtraExtraExtraLarge"},
                                                      {100, "accessibilityExtraExtraExtraLarge"}};
  for (const auto& [factor, name] : rows) {
    EXPECT_EQ(nameOf(swiftui::contentSizeCategoryFor(factor)), name) << factor;
  }
}

/// The runs of a text as they reach the text engine.
TEST(Text, ItsOwnLooksWinTheFirstOneWrittenFirst) {
  const auto face = [](const char* name) { return Font::custom(name, Font::FixedSize{10}); };
  const auto color = [](std::uint8_t red) { return swiftui::Color::fixed({red, 0, 0}); };
  const Text own = Text::verbatim("own ").font(face("A")).font(face("B")).foregroundColor(color(1));
  const Text bold = Text::verbatim("bold ").bold().fontWeight(swiftui::FontWeight::medium);
  const Text sum = (own.underline(false) + bold + Text::localized("%@", {"plain"}))
                       .font(face("C"))
                       .foregroundColor(color(2))
                       .underline();
  const Text whole = sum + Text::verbatim("") + Text::verbatim(" last");
  TestWindow window(
      View(whole).font(face("D")).foregroundColor(color(3)).textCase(swiftui::TextCase::uppercase));
  const auto run = [](const char* words, const char* name, swiftui::FontWeight weight,
                      std::uint8_t red, bool underline) {
    return text::Run{words, {name, 10, weight}, {red, 0, 0}, underline};
  };
  constexpr auto regular = swiftui::FontWeight::regular;
  const std::vector<text::Run> expected = {
      run("OWN ", "A", regular, 1, false), run("BOLD ", "C", swiftui::FontWeight::bold, 2, true),
      run("PLAIN", "C", regular, 2, true), run(" LAST", "D", regular, 3, false)};
  EXPECT_EQ(std::get<render::TextItem>(window.shown().items.at(0)).text.runs, expected);
  EXPECT_NO_THROW(window.element("OWN BOLD PLAIN LAST"));
  const std::string json = render::framesToJSON(window.shown());
  EXPECT_NE(json.find(R"("strikethrough": false}, {"text": "BOLD ", "font": "C", "points": 10, )"
                      R"("weight": "bold", )"),
            std::string::npos)
      << json;
}

TEST(TextCase, ShowsTheUsersCapitalsAndLeavesWhatIsReadOutAlone) {
  swiftui::Environment turkish;
  turkish.language = "tr";
  const View outer = View(Text::verbatim("ibis"))
                         .textCase(swiftui::TextCase::uppercase)
                         .accessibilityLabel(Text::verbatim("ibis"));
  TestWindow window(outer, turkish);
  EXPECT_NO_THROW(window.element("ibis"));
  const auto& shown = std::get<render::TextItem>(window.shown().items.at(0));
  EXPECT_EQ(shown.text.runs.at(0).text, "İBİS");
}

}  // namespace
}  // namespace quorix
