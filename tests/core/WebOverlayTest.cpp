#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "QuorixWidgets/overlay/WebView.h"
#include "tests/core/ShownPage.h"
#include "tests/core/TestWindow.h"

namespace quorix {
namespace {

using swiftui::State;
using testing::shownContent;
using testing::shownPage;
using testing::TestWindow;

WebView overlay(const State<bool>& shown, std::optional<std::string> name, const char* locale) {
  return {shown.binding(), std::move(name), std::nullopt, locale};
}

TEST(WebView, StandsUnderItsHeadingAndRunsOnUnderTheBottomOfTheDevice) {
  const State<bool> shown{true};
  const struct {
    std::optional<std::string> name;
    layout::Rect page;
  } rows[] = {
      {std::nullopt, {{0, 40}, {320, 600}}},
      // 24 above and below one line of 20, and the stack's 8.
      {"Ann", {{0, 40 + 24 + 20 + 24 + 8}, {320, 600 - 76}}},
  };
  for (const auto& row : rows) {
    TestWindow window(overlay(shown, row.name, "en"));
    const render::Scene& scene = window.host->scene({320, 640}, {40, 0, 30, 0});
    EXPECT_EQ(std::get<render::FillItem>(scene.items.at(0)).frame, (layout::Rect{{}, {320, 640}}));
    EXPECT_EQ(shownPage(scene).frame, row.page);
    EXPECT_EQ(scene.hitAreas.size(), 1u) << "the page brings no control of its own";
    EXPECT_EQ(scene.accessibility.back().frame, (layout::Rect{{272, 40}, {48, 56}}));
  }
}

TEST(WebView, FillsItsSheetToTheRoundCornersAndTheBottom) {
  const State<bool> shown{true};
  testing::TestSheet alone({shown.binding(), overlay(shown, std::nullopt, "en")}, {320, 640},
                           {40, 5, 30, 10});
  auto& sheet = alone.sheet;
  const layout::Rect panel{{0, 50}, {320, 590}};
  EXPECT_EQ(shownPage(sheet.scene()).frame, (layout::Rect{{5, 50}, {305, 590}}));
  EXPECT_EQ(shownPage(sheet.scene()).topCornerRadius, 12);
  int fills = 0;
  for (const render::Item& item : sheet.scene().items) {
    const auto* fill = std::get_if<render::FillItem>(&item);
    fills += fill && fill->frame == panel && fill->topCornerRadius == 12;
  }
  EXPECT_EQ(fills, 2) << "the panel's and the overlay's, which ignores what the device covers";
}

TEST(WebView, ClosesByTheCrossInItsTrailingCorner) {
  const State<bool> shown{true};
  for (const auto direction :
       {layout::LayoutDirection::leftToRight, layout::LayoutDirection::rightToLeft}) {
    swiftui::Environment environment;
    environment.direction = direction;
    environment.language = "de";
    TestWindow window(overlay(shown, "Ann", "en"), environment);
    const auto& button = window.element("Schließen");  // the user's language, not the page's
    const bool mirrored = direction == layout::LayoutDirection::rightToLeft;
    EXPECT_EQ(button.frame, (layout::Rect{{mirrored ? 0.0 : 272.0, 0}, {48, 56}}));
    EXPECT_EQ(button.role, render::Role::button);
    for (const bool open : {false, true}) {
      window.act("Schließen");
      EXPECT_EQ(shown.get(), open) << "a toggle";
    }
  }
}

TEST(WebView, LaterValuesReachTheHeadingAndNotThePage) {
  const State<bool> shown{true};
  TestWindow window(overlay(shown, "Ann", "en"));
  const webkit::WebContent* const content = &shownContent(window.shown());
  const std::string address = content->url()->absoluteString();
  EXPECT_NE(address.find("lang=en"), std::string::npos) << address;
  window.host->updateRoot(overlay(shown, "Ann", "sv"));
  window.settle();
  EXPECT_NO_THROW(window.element("Dina returer, Ann"));
  EXPECT_EQ(&shownContent(window.shown()), content);
  EXPECT_EQ(content->url()->absoluteString(), address);
}

}  // namespace
}  // namespace quorix
