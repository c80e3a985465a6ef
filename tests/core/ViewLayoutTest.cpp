#include <gtest/gtest.h>

#include "platform/uikit/Nib.h"
#include "platform/uikit/UIImageView.h"
#include "platform/uikit/ViewLayout.h"
#include "tests/core/FixedWidthText.h"
#include "tests/core/InterfaceFile.h"

using namespace quorix;
using namespace quorix::uikit;
using quorix::testing::constraintElement;
using quorix::testing::labelElement;

namespace {

constexpr auto leftToRight = layout::LayoutDirection::leftToRight;
constexpr auto rightToLeft = layout::LayoutDirection::rightToLeft;

std::string printed(const layout::Rect& frame) {
  const auto number = [](double value) { return std::to_string(static_cast<int>(value)); };
  return number(frame.left()) + " " + number(frame.top()) + " " + number(frame.size.width) + " " +
         number(frame.size.height);
}

struct Case {
  const char* name;
  std::string subviews;
  std::string constraints;
  std::optional<double> width;  ///< offered
  layout::LayoutDirection direction;
  std::vector<std::string> frames;  ///< of the box, then of its subviews
};

// Ten-point text: a character is 5 points wide, a line 12.5 high, rounded up to 13.
std::vector<Case> cases() {
  const std::string aLabel = labelElement("a", "ten  chars"), bLabel = labelElement("b", "four");
  const std::string inset = constraintElement("a", "top", "", "box", "top", 16) +
                            constraintElement("a", "leading", "", "box", "leading", 16) +
                            constraintElement("", "trailing", "", "a", "trailing", 24);
  const std::string below = constraintElement("b", "top", "", "a", "bottom", 8) +
                            constraintElement("", "bottom", "", "b", "bottom", 4);
  const std::string linkSides =
      constraintElement("b", "leading", "", "box", "leading", 16) +
      constraintElement("", "trailing", "greaterThanOrEqual", "b", "trailing", 24);
  const std::string stacked = inset + below + linkSides;
  const std::string row = constraintElement("a", "leading", "", "box", "leading", 0) +
                          constraintElement("b", "leading", "", "a", "trailing", 8) +
                          constraintElement("b", "trailing", "", "box", "trailing", 0) +
                          constraintElement("a", "top", "", "box", "top", 0) +
                          constraintElement("b", "top", "", "a", "top", 0) +
                          constraintElement("", "bottom", "", "a", "bottom", 0);
  const std::string corner = constraintElement("a", "right", "", "box", "right", 0) +
                             constraintElement("a", "top", "", "box", "top", 10);
  std::string square = aLabel;  // which keeps its size itself
  square.insert(square.rfind("</label>"),
                "<constraints>" + constraintElement("", "width", "", "", "", 48) +
                    constraintElement("", "height", "", "", "", 48) + "</constraints>");
  return {
      {"stacked",
       aLabel + bLabel,
       stacked,
       100,
       leftToRight,
       {"0 0 100 54", "16 16 60 13", "16 37 20 13"}},
      {"mirrored",
       aLabel + bLabel,
       stacked,
       100,
       rightToLeft,
       {"0 0 100 54", "24 16 60 13", "64 37 20 13"}},
      {"wrapped",
       aLabel + bLabel,
       stacked,
       70,
       leftToRight,
       {"0 0 70 66", "16 16 30 25", "16 49 20 13"}},
      {"narrower than the link",
       aLabel + bLabel,
       stacked,
       50,
       leftToRight,
       {"0 0 50 116", "16 16 10 63", "16 87 10 25"}},
      {"as wide as it wishes",
       aLabel + bLabel,
       stacked,
       std::nullopt,
       leftToRight,
       {"0 0 90 54", "16 16 50 13", "16 37 20 13"}},
      {"the last of a row takes the rest",
       aLabel + bLabel,
       row,
       100,
       leftToRight,
       {"0 0 100 13", "0 0 50 13", "58 0 42 13"}},
      {"a row mirrored",
       aLabel + bLabel,
       row,
       100,
       rightToLeft,
       {"0 0 100 13", "50 0 50 13", "0 0 42 13"}},
      {"the corner does not follow reading",
       square,
       corner,
       100,
       rightToLeft,
       {"0 0 100 0", "52 10 48 48"}},
      {"one line runs out",
       labelElement("a", "ten  chars", "1"),
       constraintElement("a", "left", "", "box", "left", 0) +
           constraintElement("a", "top", "", "box", "top", 0) +
           constraintElement("a", "right", "", "box", "right", 0) +
           constraintElement("a", "bottom", "", "box", "bottom", 0),
       20,
       leftToRight,
       {"0 0 20 13", "0 0 20 13"}},
      {"no rules at all", aLabel, "", 100, leftToRight, {"0 0 100 0", "0 0 50 13"}},
      {"a size of its own",
       aLabel,
       constraintElement("", "width", "", "", "", 40) +
           constraintElement("", "height", "", "", "", 30),
       100,
       leftToRight,
       {"0 0 40 30", "0 0 50 13"}},
  };
}

}  // namespace

TEST(ViewLayout, FollowsConstraintsAndContent) {
  for (const Case& row : cases()) {
    SCOPED_TRACE(row.name);
    std::shared_ptr<UIView> box;
    const auto file = quorix::testing::interfaceFile(row.subviews, row.constraints);
    const auto read = Nib::parse(file, "Card", "Card", {{{"box", &box}}, {}});
    const auto* error = std::get_if<foundation::Error>(&read);
    ASSERT_EQ(error, nullptr) << error->description;
    quorix::testing::FixedWidthText text;
    const LayoutContext context{text, {.direction = row.direction}};
    const ViewLayout layout(context);
    layout.layOut(*box, {{}, layout.sizeThatFits(*box, {row.width, std::nullopt})});
    std::vector<std::string> frames = {printed(box->frame())};
    for (const auto& view : box->subviews()) frames.push_back(printed(view->frame()));
    EXPECT_EQ(frames, row.frames);
    // Each text is shaped once for each width.
    std::sort(text.calls.begin(), text.calls.end());
    EXPECT_EQ(std::adjacent_find(text.calls.begin(), text.calls.end()), text.calls.end());
  }
}

TEST(ViewLayout, PicturesStandInTheirLayoutRectangle) {
  const layout::Rect square = {{10, 10}, {48, 48}};
  struct {
    UIEdgeInsets insets;
    const char* drawn;
  } const rows[] = {
      {{}, "10 10 48 48"},
      {{4, 8, 4, 8}, "2 6 64 56"},           // a shadow reaches out
      {{-8, -12, -8, -4}, "22 18 32 32"},    // room around the picture
      {{-32, -32, -32, -32}, "22 22 24 24"}  // more room than there is
  };
  for (const auto& row : rows) {
    EXPECT_EQ(printed(UIImageView::pictureFrame(square, row.insets, {24, 24})), row.drawn);
  }
}
