#include <gtest/gtest.h>

#include <optional>
#include <stdexcept>
#include <string>

#include "QuorixWidgets/overlay/WebView.h"
#include "platform/webkit/WebContent.h"
#include "tests/core/TestWindow.h"

namespace quorix {
namespace {

using swiftui::State;
using testing::TestWindow;

/// The page as the surface would show it.
const render::EmbedItem& page(const render::Scene& scene) {
  for (const render::Item& item : scene.items) {
    if (const auto* embed = std::get_if<render::EmbedItem>(&item)) return *embed;
  }
  throw std::out_of_range("no page");
}

std::string address(TestWindow& window) {
  const auto& content = dynamic_cast<const webkit::WebContent&>(*page(window.shown()).content);
  return content.url()->absoluteString();
}

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
    EXPECT_EQ(page(scene).frame, row.page);
    EXPECT_EQ(scene.accessibility.back().frame, (layout::Rect{{272, 40}, {48, 56}}));
  }
}

TEST(WebView, FillsItsSheetToTheRoundCornersAndTheBottom) {
  const State<bool> shown{true};
  testing::TestWindow window({});
  hosting::SheetPresenter sheet(window.text, window);
  sheet.setMotion(false);
  sheet.setWindow({320, 640}, {40, 0, 30, 0});
  sheet.present({shown.binding(), overlay(shown, std::nullopt, "en")});
  const layout::Rect panel = sheet.panelFrame();
  EXPECT_EQ(panel, (layout::Rect{{0, 50}, {320, 590}}));
  EXPECT_EQ(page(sheet.scene()).frame, panel);
  EXPECT_EQ(page(sheet.scene()).topCornerRadius, 12);
  for (const render::Item& item : sheet.scene().items) {
    const auto* fill = std::get_if<render::FillItem>(&item);
    EXPECT_TRUE(!fill || fill->frame != panel || fill->topCornerRadius == 12);
  }
}

TEST(WebView, ClosesByTheCrossInItsTrailingCorner) {
  const State<bool> shown{true};
  for (const auto direction :
       {layout::LayoutDirection::leftToRight, layout::LayoutDirection::rightToLeft}) {
    swiftui::Environment environment;
    environment.direction = direction;
    environment.language = "de";
    TestWindow window(overlay(shown, "Ann", "en"), environment);
    const auto& button = window.element("Schließen");  // to the user, whatever the page speaks
    const bool mirrored = direction == layout::LayoutDirection::rightToLeft;
    EXPECT_EQ(button.frame, (layout::Rect{{mirrored ? 0.0 : 272.0, 0}, {48, 56}}));
    EXPECT_EQ(button.role, render::Role::button);
    for (const bool open : {false, true}) {
      window.tap("Schließen");
      EXPECT_EQ(shown.get(), open) << "a toggle";
    }
  }
}

TEST(WebView, LaterValuesReachTheHeadingAndNotThePage) {
  const State<bool> shown{true};
  TestWindow window(overlay(shown, "Ann", "en"));
  const auto content = page(window.shown()).content;
  const std::string first = address(window);
  EXPECT_NE(first.find("lang=en"), std::string::npos) << first;
  window.host->updateRoot(overlay(shown, "Ann", "sv"));
  window.settle();
  EXPECT_NO_THROW(window.element("Dina returer, Ann"));
  EXPECT_EQ(page(window.shown()).content, content);
  EXPECT_EQ(address(window), first);
}

}  // namespace
}  // namespace quorix
