#include <gtest/gtest.h>

#include <cmath>

#include "QuorixWidgets/info/InfoWidgetBuilder.h"
#include "platform/foundation/MainQueue.h"
#include "platform/swiftui/UIViewRepresentable.h"
#include "qt/Engine.h"
#include "qt/StillScene.h"
#include "tests/qt/WaitUntil.h"

using namespace quorix;

namespace {

std::vector<render::TextItem> texts(const swiftui::View& view, const qt::PictureOptions& options) {
  std::vector<render::TextItem> found;
  for (const auto& item : qt::stillScene(view, options).view.items) {
    if (const auto* text = std::get_if<render::TextItem>(&item)) found.push_back(*text);
  }
  return found;
}

/// Where the words begin: right-to-left text may have empty room on its left.
double beginning(const layout::Rect& frame, layout::LayoutDirection direction) {
  return direction == layout::LayoutDirection::rightToLeft ? frame.right() : frame.left();
}

}  // namespace

/// Designers draw the widget once: its two forms differ in the logo and in what the link looks
/// like.
TEST(InfoWidgetForms, SetTheirTextsAlike) {
  qt::installEngine();  // and with it the main queue
  for (const char* locale : {"en", "de", "ar"}) {
    SCOPED_TRACE(locale);
    const InfoWidgetStyle style{std::nullopt, std::nullopt, std::nullopt, false};
    qt::PictureOptions options;
    options.environment.scale = 2;
    if (std::string_view(locale) == "ar") {
      options.environment.direction = layout::LayoutDirection::rightToLeft;
    }
    const auto imperative = InfoWidgetBuilder::buildUIKitInfoWidgetView(locale, style);
    bool titled = false;  // by the turn of the main queue that comes before this one
    foundation::MainQueue::async([&] { titled = true; });
    ASSERT_TRUE(quorix::testing::waitUntil([&] { return titled; }));
    const auto expected =
        texts(InfoWidgetBuilder::buildSwiftUIInfoWidgetView(locale, style), options);
    const auto shown = texts(swiftui::hosting(imperative), options);
    ASSERT_EQ(expected.size(), 2u);
    ASSERT_EQ(shown.size(), 2u);
    for (std::size_t i = 0; i < 2; ++i) {
      SCOPED_TRACE(i);
      const auto direction = options.environment.direction;
      EXPECT_NEAR(beginning(shown[i].frame, direction), beginning(expected[i].frame, direction), 1);
      EXPECT_NEAR(shown[i].frame.top(), expected[i].frame.top(), 1);
      EXPECT_NEAR(shown[i].frame.size.height, expected[i].frame.size.height, 1);
      ASSERT_EQ(shown[i].text.runs.size(), expected[i].text.runs.size());
    }
  }
}
