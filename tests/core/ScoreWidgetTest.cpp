#include <algorithm>
#include <limits>
#include <sstream>

#include "QuorixWidgets/score/ScoreWidgetBuilder.h"
#include "platform/swiftui/TreePrinter.h"
#include "tests/core/TestWindow.h"
#include "tests/core/Vectors.h"
#include "tests/core/Widgets.h"

namespace quorix {
namespace {

using testing::TestWindow;

// View model.

TEST(ScoreWidgetViewModel, ShowsWholeUnitsOfTheCurrency) {
  forEachRow("fees", [](simdjson::dom::element row) {
    // Both fees have the same format, also if the discounted one is larger.
    const std::int64_t fee = row["hundredths"];
    const auto modelOf = [&](std::int64_t base, std::int64_t reduced) {
      const TokenData token{0.5, ::text(row, "currency"), base, reduced};
      return ScoreWidgetViewModel("shop", token, ::text(row, "language"), testing::ownFaces);
    };
    EXPECT_EQ(modelOf(fee, 0).baseReturnFee.get(), ::text(row, "text"));
    EXPECT_EQ(modelOf(0, fee).reducedReturnFee.get(), ::text(row, "text"));
  });
}

TEST(ScoreWidgetViewModel, TheScoreAloneDecidesTheDiscount) {
  const std::map<double, bool> rows = {{0.1, true},     {0x1.9999999999999p-4, false},
                                       {0.0999, false}, {1.5, true},
                                       {-1, false},     {0.8, true}};
  for (const auto& [score, discount] : rows) {
    const TokenData token{score, "EUR", 300, 300};
    EXPECT_EQ(ScoreWidgetViewModel("shop", token, "en", testing::ownFaces).hasDiscount, discount)
        << score;
  }
}

TEST(ReturnRate, RoundsHalvesAwayFromZero) {
  forEachRow("rates", [](simdjson::dom::element row) {
    EXPECT_EQ(returnRateText(bitsOfDouble(row, "score_bits")), ::text(row, "rate"));
  });
}

TEST(ReturnRateDeathTest, ReachesToTheEndsOf64BitsAndStopsTheProcessBeyond) {
  EXPECT_EQ(returnRateText(0x1p63 / 100), "-9223372036854775808%");
  EXPECT_EQ(returnRateText(-0x1.fffffffffffffp62 / 100), "9223372036854774784%");
  using Limits = std::numeric_limits<double>;
  for (const double score : {-0x1p63 / 100, 0x1.0000000000001p63 / 100, Limits::max(),
                             Limits::infinity(), -Limits::infinity(), Limits::quiet_NaN()}) {
    EXPECT_FALSE(hasReturnRate(score)) << score;
    EXPECT_DEATH(returnRateText(score), "Fatal error: .*return rate") << score;
  }
}

// Content, display list, accessibility and size.

/// Prints a view of `size`, laid out as often as a surface may ask.
std::string printed(const swiftui::View& view, layout::Size size) {
  TestWindow window({}, {}, size);
  window.text.calls.clear();
  window.host->setRoot(view);
  for (int i = 0; i < 3; ++i) {
    window.host->sizeThatFits({});
    window.host->sizeThatFits({size.width, std::nullopt});
    window.host->scene(size);
  }
  std::ostringstream text;
  text << swiftui::printTree(view) << "\nframes\n" << testing::printedItems(window.shown());
  text << "\nread out\n" << render::printAccessibility(window.shown()) << "\nmeasured\n";
  std::sort(window.text.calls.begin(), window.text.calls.end());
  for (const auto& [words, width] : window.text.calls)
    text << '"' << words << "\" " << width << '\n';
  return text.str();
}

// In 200 points, the Spanish row is too narrow for its title, which is measured again for the
// remaining 72.
TEST(ScoreWidgetView, IsAsDesigned) {
  forEachRow("score/printed", [](simdjson::dom::element row) {
    const std::string written = ::text(row, "language"),
                      language = written.empty() ? "en" : written;
    const auto model = testing::scoreModel(row["discount"], language);
    const auto strings = LocalizationRepository::make(language);
    if (written.empty()) strings->strings = TranslationTable::make({});
    const auto view = row["sheet"]
                          ? scoreWidgetSheet(*model, *strings, swiftui::State(true).binding())
                          : swiftui::View(ScoreWidgetView{model, strings});
    EXPECT_EQ(printed(view, {row["size"].at(0), row["size"].at(1)}),
              contentsOf("score/" + ::text(row, "file") + ".txt"));
  });
}

// Builder.

constexpr const char* token =
    "h.eyJkYXRhIjp7InNjb3JlIjowLjgyLCJmZWVfY3VycmVuY3kiOiJFVVIiLCJiYXNlX2ZlZV9hbW91bnQiOjQ5OSwi"
    "ZGlzY291bnRlZF9mZWVfYW1vdW50IjoyOTl9fQ.s";

swiftui::View build(const char* clientId, const char* locale, const char* shopperToken) {
  return ScoreWidgetBuilder::buildSwiftUIScoreWidgetView(clientId, locale, shopperToken,
                                                         testing::ownFaces);
}

TEST(ScoreWidgetBuilder, GivesTheEmptyBranchForWhatItCannotUse) {
  constexpr const char* absurdScore =
      "h.eyJkYXRhIjp7InNjb3JlIjoxZTE4LCJmZWVfY3VycmVuY3kiOiJFVVIiLCJiYXNlX2ZlZV9hbW91bnQiOjQ5OSwi"
      "ZGlzY291bnRlZF9mZWVfYW1vdW50IjoyOTl9fQ.s";
  ASSERT_EQ(parseTokenData(absurdScore), (TokenData{1e18, "EUR", 499, 299}));
  const std::vector<std::pair<const char*, const char*>> rows = {
      {"shop", ""}, {"shop", "h"}, {"", token}, {"shop", absurdScore}};
  for (const auto& [clientId, shopperToken] : rows) {
    const auto view = build(clientId, "en", shopperToken);
    EXPECT_EQ(swiftui::printTree(view), "Conditional(false)\n  EmptyView\n");
    TestWindow window(view);
    EXPECT_EQ(window.host->sizeThatFits({300, std::nullopt}), layout::Size());
    EXPECT_TRUE(window.shown().accessibility.empty());
  }
}

TEST(ScoreWidgetBuilder, EachCallMakesAWidgetOfItsOwnForAnyLocale) {
  const auto network = testing::HeldTransport::install();
  TestWindow one(build("shop", "en", token));
  TestWindow other(build("shop", "", token));
  one.settle();
  other.settle();
  ASSERT_EQ(network->held.size(), 2U);
  network->held[0]({{}, R"({"returns": {"title": "Fee"}})", 200});
  network->held[1]({foundation::Error{"offline", 1, {}}, {}, 0});
  one.settle();
  one.act("Fee  €2.00,  €4.00");
  EXPECT_TRUE(one.sheet());
  EXPECT_FALSE(other.sheet());
  EXPECT_NO_THROW(other.element("Your return fee Discounted €\u00A02.00, Original €\u00A04.00"));
}

}  // namespace
}  // namespace quorix
