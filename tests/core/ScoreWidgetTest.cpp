#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <limits>
#include <map>
#include <sstream>

#include "QuorixWidgets/score/ScoreWidgetBuilder.h"
#include "QuorixWidgets/score/ScoreWidgetSheet.h"
#include "platform/swiftui/TreePrinter.h"
#include "tests/core/ScoreWidgets.h"
#include "tests/core/TestWindow.h"

namespace quorix {
namespace {

using testing::HeldTransport;
using testing::scoreModel;
using testing::scoreView;
using testing::TestWindow;

std::string contentsOf(const std::string& name) {
  std::ifstream file(TEST_DATA "/score/" + name);
  return {std::istreambuf_iterator<char>(file), {}};
}

// View model.

TEST(ScoreWidgetViewModel, ShowsWholeUnitsOfTheCurrency) {
  constexpr std::int64_t least = std::numeric_limits<std::int64_t>::min();
  const struct {
    const char* language;
    const char* currency;
    std::int64_t hundredths;
    const char* text;
  } rows[] = {
      {"en", "EUR", 499, "€4.00"},       {"en", "EUR", 500, "€5.00"},
      {"en", "EUR", 99, "€0.00"},        {"en", "EUR", -99, "€0.00"},
      {"en", "EUR", -150, "-€1.00"},     {"en", "EUR", least, "-€92,233,720,368,547,758.00"},
      {"es", "EUR", 499, "4,00\u00A0€"}, {"en", "JPY", 12399, "¥123"},
      {"en", "", 499, "¤4.00"},          {"", "EUR", 499, "€\u00A04.00"},
  };
  for (const auto& row : rows) {
    // The two fees are written alike, whichever of them is the larger.
    const TokenData base{0.5, row.currency, row.hundredths, 0};
    const TokenData reduced{0.5, row.currency, 0, row.hundredths};
    const auto& faces = testing::ownFaces;
    EXPECT_EQ(ScoreWidgetViewModel("shop", base, row.language, faces).baseReturnFee.get(),
              row.text);
    EXPECT_EQ(ScoreWidgetViewModel("shop", reduced, row.language, faces).reducedReturnFee.get(),
              row.text);
  }
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

TEST(ScoreWidgetViewModel, TellsOfEachChangeBeforeItIsStored) {
  const auto model = scoreModel(true);
  std::vector<std::string> seen;
  const auto token = model->onWillChange(
      [&] { seen.push_back(model->reducedReturnFee.get() + " " + model->returnRate.get()); });
  model->getReducedReturnFee(1200);
  EXPECT_EQ(seen, (std::vector<std::string>{"€2.00 18%", "€12.00 18%"}));
  EXPECT_EQ(model->baseReturnFee.get(), "€4.00");
}

// Trees.

TEST(ScoreWidgetView, IsTheTreeExpected) {
  const struct {
    const char* file;
    bool discount;
    const char* language;
    bool emptyTable;
  } rows[] = {
      {"plain-en.txt", false, "en", false},
      {"discount-en.txt", true, "en", false},
      {"discount-es.txt", true, "es", false},
      {"discount-empty.txt", true, "en", true},
  };
  for (const auto& row : rows) {
    const auto strings = LocalizationRepository::make(row.language);
    if (row.emptyTable) strings->strings = TranslationTable::make({});
    const ScoreWidgetView view{scoreModel(row.discount, row.language), strings};
    EXPECT_EQ(swiftui::printTree(view), contentsOf(row.file)) << row.file;
  }
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
  const std::vector<std::pair<const char*, const char*>> rows = {
      {"shop", ""}, {"", ""}, {"shop", "h"}, {"shop", "h.e30.s"}, {"", token}};
  for (const auto& [clientId, shopperToken] : rows) {
    const auto view = build(clientId, "en", shopperToken);
    EXPECT_EQ(swiftui::printTree(view), "Conditional(false)\n  EmptyView\n");
    TestWindow window(view);
    EXPECT_EQ(window.host->sizeThatFits({300, std::nullopt}), layout::Size());
    EXPECT_TRUE(window.shown().accessibility.empty());
  }
}

TEST(ScoreWidgetBuilder, BuildsTheViewForAnyLocale) {
  std::istringstream expected(contentsOf("discount-en.txt"));
  std::string tree = "Conditional(true)\n";
  for (std::string line; std::getline(expected, line);) tree += "  " + line + "\n";
  EXPECT_EQ(swiftui::printTree(build("shop", "en", token)), tree);
  TestWindow window(build("shop", "", token));
  EXPECT_NO_THROW(window.element("Your return fee Discounted €\u00A02.00, Original €\u00A04.00"));
}

TEST(ScoreWidgetBuilder, EachCallMakesAWidgetOfItsOwn) {
  const auto network = HeldTransport::install();
  TestWindow one(build("shop", "en", token));
  TestWindow other(build("shop", "en", token));
  one.settle();
  other.settle();
  ASSERT_EQ(network->held.size(), 2U);
  network->held[0]({{}, R"({"returns": {"title": "Fee"}})", 200});
  network->held[1]({foundation::Error{"offline", 1, {}}, {}, 0});
  one.settle();
  one.tap("Fee  €2.00,  €4.00");
  one.settle();
  EXPECT_TRUE(one.sheet);
  EXPECT_FALSE(other.sheet);
  EXPECT_NO_THROW(other.element("Your return fee Discounted €2.00, Original €4.00"));
}

// Measuring.

using Calls = std::vector<testing::FixedWidthText::Call>;

Calls sorted(Calls calls) {
  std::sort(calls.begin(), calls.end());
  return calls;
}

/// Asks as a surface's layout does: again and again.
void layOutRepeatedly(hosting::ViewHost& host, layout::Size size) {
  for (int i = 0; i < 3; ++i) {
    host.sizeThatFits({});
    host.sizeThatFits({size.width, std::nullopt});
    host.scene(size);
  }
}

TEST(ScoreWidgetMeasuring, ShapesEachTextOfTheRowOncePerWidth) {
  constexpr double all = layout::infinity;
  const struct {
    double width;
    Calls calls;
  } rows[] = {
      {300, {{"YOUR RETURN FEE", all}, {"€2.00", all}, {"€4.00", all}}},
      // What is left for the title: 200 less two fees of 35, three gaps of 12 and the spacer's 8.
      {200, {{"YOUR RETURN FEE", 86}, {"YOUR RETURN FEE", all}, {"€2.00", all}, {"€4.00", all}}},
  };
  for (const auto& row : rows) {
    TestWindow window(scoreView(true), {}, {row.width, 44});
    window.text.calls.clear();
    window.host->setRoot(scoreView(true));
    layOutRepeatedly(*window.host, window.size);
    EXPECT_EQ(sorted(window.text.calls), row.calls) << row.width;
  }
}

TEST(ScoreWidgetMeasuring, ShapesEachTextOfTheSheetOncePerWidth) {
  const auto strings = LocalizationRepository::make("en");
  const auto sheet = scoreWidgetSheet(*scoreModel(false), *strings, swiftui::State(true).binding());
  TestWindow window({}, {}, {320, 400});
  window.host->setRoot(sheet);
  layOutRepeatedly(*window.host, window.size);
  const std::string disclaimer(strings->strings.get()->text("returns", "disclaimer"));
  constexpr double all = layout::infinity;
  EXPECT_EQ(sorted(window.text.calls), (Calls{{"95%", all},
                                              {"Return fee", all},
                                              {"Return rate", all},
                                              {"YOUR RETURN FEE", all},
                                              {disclaimer, 288},
                                              {disclaimer, all},
                                              {"€4.00", all}}));
}

}  // namespace
}  // namespace quorix
