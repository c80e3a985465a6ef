#include "platform/uikit/ViewPrinter.h"

#include <gtest/gtest.h>

#include "FixedWidthText.h"
#include "platform/uikit/UILabel.h"
#include "platform/uikit/ViewLayout.h"

namespace quorix::uikit {
namespace {

TEST(ViewPrinter, WordsClassesFramesLooksAndConstraints) {
  const auto box = std::make_shared<UIView>();
  box->setBackgroundColor(UIColor::fixed({255, 0, 0, 255}));
  box->layer().setBorderWidth(1.5);
  const auto title = std::make_shared<UILabel>();
  const auto link = std::make_shared<UILabel>();
  for (const auto& label : {title, link}) {
    label->setTranslatesAutoresizingMaskIntoConstraints(false);
    label->setFont(UIFont::system(10));
    box->addSubview(label);
  }
  title->setText("A \"title\"");
  link->setText("More");
  link->setAccessibilityTraits(UIAccessibilityTraits::link);
  link->setUserInteractionEnabled(true);
  link->addGestureRecognizer(std::make_shared<UITapGestureRecognizer>(box, [](auto&, auto&) {}));
  NSLayoutConstraint::activate({title->leadingAnchor().equalTo(box->leadingAnchor(), 16),
                                title->topAnchor().equalTo(box->topAnchor()),
                                link->topAnchor().equalTo(title->bottomAnchor(), 8),
                                box->trailingAnchor().greaterThanOrEqualTo(link->trailingAnchor()),
                                link->leadingAnchor().equalTo(title->leadingAnchor(), -4),
                                title->widthAnchor().equalTo(200.5)});
  const auto hidden = std::make_shared<UIView>(layout::Rect{{1, 2}, {3, 4}});
  hidden->setHidden(true);
  box->addSubview(hidden);

  testing::FixedWidthText engine;
  const LayoutContext context{engine, {}};
  ViewLayout(context).layOut(*box, {{}, {300, 100}});
  EXPECT_EQ(printViews(*box),
            "UIView 0 0 300 100 background #FF0000FF border 1.5\n"
            "    .constraint(UILabel[0].leading = UIView.leading + 16)\n"
            "    .constraint(UILabel[0].top = UIView.top)\n"
            "    .constraint(UILabel[1].top = UILabel[0].bottom + 8)\n"
            "    .constraint(UIView.trailing >= UILabel[1].trailing)\n"
            "    .constraint(UILabel[1].leading = UILabel[0].leading - 4)\n"
            "  UILabel 16 0 200.5 13 \"A \\\"title\\\"\"\n"
            "      .constraint(UILabel.width = 200.5)\n"
            "  UILabel 12 21 20 13 \"More\" link taps\n"
            "  UIView 1 2 3 4 hidden\n");
}

}  // namespace
}  // namespace quorix::uikit
