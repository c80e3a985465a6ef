#include <algorithm>

#include "platform/uikit/Nib.h"
#include "platform/uikit/UIImageView.h"
#include "platform/uikit/ViewLayout.h"
#include "tests/core/FixedWidthText.h"
#include "tests/core/Resources.h"
#include "tests/core/Vectors.h"

namespace quorix::uikit {
namespace {

/// The refusal of `xml`, or the connected outlets.
std::string outcome(const std::string& xml) {
  std::shared_ptr<UIView> box;
  std::weak_ptr<UILabel> label;
  const auto bundle = testing::memoryBundle({{"Card.xib", xml}});
  const auto read = Nib::load("Card", *bundle, "Card", {{{"box", &box}}, {{"label", &label}}});
  if (const auto* error = std::get_if<foundation::Error>(&read)) {
    EXPECT_EQ(box, nullptr) << "a refused file connects nothing";
    return error->description;
  }
  return box ? "read" : "nothing connected";
}

TEST(Nib, RefusesWhatItDoesNotShow) {
  const std::string good = contentsOf("cards/good.xib");
  EXPECT_EQ(outcome(good), "read");
  EXPECT_THAT(outcome(""), ::testing::HasSubstr("No document element found"));
  EXPECT_THAT(outcome("<view"), ::testing::HasSubstr("Card.xib:1: "));
  EXPECT_THAT(outcome("<nib/>"), ::testing::HasSubstr("not an interface file"));
  forEachRow("interface_mistakes", [&](simdjson::dom::element row) {
    std::string xml = good;
    const auto at = xml.find(::text(row, "from"));
    ASSERT_NE(at, std::string::npos);
    xml.replace(at, ::text(row, "from").size(), ::text(row, "to"));
    EXPECT_THAT(outcome(xml), ::testing::HasSubstr(::text(row, "says")));
  });
  std::string deep = good;
  for (int i = 0; i < 40; ++i) {
    deep.insert(deep.find("</subviews>"),
                "<view id='x" + std::to_string(i) + "'><subviews></subviews></view>");
  }
  EXPECT_THAT(outcome(deep), ::testing::HasSubstr("nested too deep"));
}

std::string printed(const layout::Rect& frame) {
  const auto number = [](double value) { return std::to_string(static_cast<int>(value)); };
  return number(frame.left()) + " " + number(frame.top()) + " " + number(frame.size.width) + " " +
         number(frame.size.height);
}

// Ten-point text: a character is 5 points wide, a line 12.5 high, rounded up to 13.
TEST(ViewLayout, FollowsConstraintsAndContent) {
  forEachRow("layout/constraints", [&](simdjson::dom::element row) {
    std::shared_ptr<UIView> box;
    const auto bundle = foundation::Bundle::open(TEST_DATA "/cards");
    const auto read = Nib::load(::text(row, "card"), *bundle, "Card", {{{"box", &box}}, {}});
    const auto* error = std::get_if<foundation::Error>(&read);
    ASSERT_EQ(error, nullptr) << error->description;
    std::optional<double> width;  // the offered width
    if (!row["width"].is_null()) width = double(row["width"]);
    using Direction = layout::LayoutDirection;
    testing::FixedWidthText engine;
    const LayoutContext context{
        engine, {.direction = bool(row["rtl"]) ? Direction::rightToLeft : Direction::leftToRight}};
    const ViewLayout layout(context);
    layout.layOut(*box, {{}, layout.sizeThatFits(*box, {width, std::nullopt})});
    std::string frames = printed(box->frame());
    for (const auto& view : box->subviews()) frames += ", " + printed(view->frame());
    EXPECT_EQ(frames, ::text(row, "frames"));
    // Each text is shaped once for each width.
    std::sort(engine.calls.begin(), engine.calls.end());
    EXPECT_EQ(std::adjacent_find(engine.calls.begin(), engine.calls.end()), engine.calls.end());
  });
}

TEST(ViewLayout, PicturesStandInTheirLayoutRectangle) {
  forEachRow("layout/insets", [](simdjson::dom::element row) {
    const auto at = row["insets"];
    const UIEdgeInsets insets{at.at(0), at.at(1), at.at(2), at.at(3)};
    EXPECT_EQ(printed(UIImageView::pictureFrame({{10, 10}, {48, 48}}, insets, {24, 24})),
              ::text(row, "drawn"));
  });
}

}  // namespace
}  // namespace quorix::uikit
