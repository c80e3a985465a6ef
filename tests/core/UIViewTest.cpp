#include "platform/uikit/UIView.h"

#include "platform/render/Wording.h"
#include "platform/swiftui/UIViewRepresentable.h"
#include "platform/uikit/UILabel.h"
#include "platform/uikit/ViewPrinter.h"
#include "tests/core/TestWindow.h"
#include "tests/core/Vectors.h"

namespace quorix::uikit {
namespace {

using testing::TestWindow;

using Taps = std::vector<std::string>;

/// A plain view. With `taps`, it records taps there under `name`.
std::shared_ptr<UIView> box(layout::Rect frame, const std::shared_ptr<Taps>& taps = nullptr,
                            const char* name = "") {
  auto view = std::make_shared<UIView>(frame);
  if (!taps) return view;
  view->addGestureRecognizer(std::make_shared<UITapGestureRecognizer>(
      taps, [name](Taps& noted, UITapGestureRecognizer&) { noted.push_back(name); }));
  return view;
}

TEST(UIView, TapsFindTheTopmostTouchedView) {
  const auto taps = std::make_shared<Taps>();
  const auto root = box({{}, {100, 100}});
  const auto low = box({{0, 0}, {50, 50}}, taps, "low");
  const auto cover = box({{0, 0}, {20, 20}});   // takes touches, without an action
  const auto glass = box({{20, 0}, {20, 20}});  // lets touches through
  const auto gone = box({{0, 20}, {20, 20}}, taps, "gone");
  const auto parent = box({{50, 50}, {50, 50}}, taps, "parent");
  const auto child = box({{10, 10}, {20, 20}}, taps, "child");
  const auto label = std::make_shared<UILabel>(layout::Rect{{30, 30}, {60, 10}});
  for (const auto& view : {low, cover, glass, gone, parent}) root->addSubview(view);
  parent->addSubview(child);
  parent->addSubview(label);
  glass->setUserInteractionEnabled(false);
  gone->setHidden(true);

  testing::FixedWidthText text;
  UIViewContent content(root);
  const render::Scene scene = content.scene({100, 100}, {}, text);
  // Outside its superview, the label takes no touches.
  forEachRow("gestures/touches", [&](simdjson::dom::element row) {
    taps->clear();
    if (const auto* area = scene.hitTest(point(row["point"]))) area->action();
    const std::string tapped = ::text(row, "tapped");
    EXPECT_EQ(*taps, tapped.empty() ? Taps{} : Taps{tapped});
  });
}

TEST(Wording, EscapesTextsAndRoundsLengths) {
  EXPECT_EQ(render::inQuotes("More\n\"now\"\\\x1B"), R"("More\n\"now\"\\\u001b")");
  EXPECT_EQ(render::points(0.12345), "0.123");
  EXPECT_EQ(render::points(-0.0001), "0");
}

TEST(UIView, LeavesItsPlaceWithItsConstraints) {
  const auto one = box({}), other = box({}), child = box({}), sibling = box({});
  one->addSubview(sibling);
  one->addSubview(child);
  sibling->setHidden(true);
  NSLayoutConstraint::activate({child->topAnchor().equalTo(one->topAnchor()),
                                sibling->topAnchor().equalTo(child->bottomAnchor()),
                                sibling->leftAnchor().equalTo(one->leftAnchor(), -4)});
  one->insertSubview(child, 0);
  EXPECT_EQ(printViews(*one),
            "UIView 0 0 0 0\n"
            "    .constraint(UIView[0].top = UIView.top)\n"
            "    .constraint(UIView[1].top = UIView[0].bottom)\n"
            "    .constraint(UIView[1].left = UIView.left - 4)\n"
            "  UIView 0 0 0 0\n"
            "  UIView 0 0 0 0 hidden\n");
  other->addSubview(child);
  EXPECT_EQ(child->superview(), other);
  EXPECT_EQ(printViews(*one),
            "UIView 0 0 0 0\n"
            "    .constraint(UIView[0].left = UIView.left - 4)\n"
            "  UIView 0 0 0 0 hidden\n");
  EXPECT_DEATH(NSLayoutConstraint::activate({child->topAnchor().equalTo(one->topAnchor())}),
               "A constraint joins comparable attributes");
  EXPECT_DEATH(child->addSubview(other), "Only another view");
}

struct Counter {
  static constexpr std::string_view typeName = "Counter";
  int value = 0;
  std::vector<std::weak_ptr<UIView>>* made;
  std::shared_ptr<UILabel> makeUIView() const {
    auto label = std::make_shared<UILabel>();
    made->push_back(label);
    return label;
  }
  void updateUIView(UILabel& label) const { label.setText(std::to_string(value)); }
};

TEST(Representable, IsMadeOnceAndToldOfLaterValues) {
  std::vector<std::weak_ptr<UIView>> made;
  TestWindow window(swiftui::represent(Counter{1, &made}));
  // The same view with another value, as after another evaluation of a body.
  window.host->updateRoot(swiftui::represent(Counter{2, &made}));
  EXPECT_EQ(window.element("2").label, "2");
  ASSERT_EQ(made.size(), 1u);
  // A change from outside is shown without another evaluation.
  const int before = window.displays;
  std::static_pointer_cast<UILabel>(made.front().lock())->setAccessibilityLabel("two");
  EXPECT_EQ(window.displays, before + 1);
  EXPECT_EQ(window.element("two").label, "two");
  // Another type in the same place is another view; the first one is released.
  const auto page = std::make_shared<UIViewController>();
  page->view()->setAccessibilityLabel("page");
  window.host->updateRoot(swiftui::hosting(page));
  EXPECT_EQ(window.element("page").frame, (layout::Rect{{}, {320, 640}}));
  EXPECT_TRUE(made.front().expired());
}

TEST(Hosting, ShowsTheViewThatItIsGiven) {
  const auto label = [](const char* text) {
    auto made = std::make_shared<UILabel>();
    made->setText(text);
    return made;
  };
  const auto first = label("first"), second = label("second");
  TestWindow window(swiftui::hosting(first));
  EXPECT_EQ(window.element("first").frame.size, (layout::Size{43, 22}));  // 17 points, rounded up
  window.host->updateRoot(swiftui::hosting(second));
  EXPECT_EQ(window.labels(), "second");
  const int before = window.displays;
  first->setText("nobody looks");
  EXPECT_EQ(window.displays, before);
  second->setText("last");
  EXPECT_EQ(window.labels(), "last");
}

struct Surface final : UIWindow::Client {
  int changes = 0;
  void presentedControllersChanged(UIWindow&, bool) override { ++changes; }
};

std::shared_ptr<UIViewController> screen() { return std::make_shared<UIViewController>(); }

using Chain = std::vector<std::shared_ptr<UIViewController>>;

TEST(UIViewController, PresentsAChainAndTellsItsWindow) {
  const auto root = screen(), first = screen(), second = screen(), other = screen();
  Surface surface;
  {
    UIWindow window;
    window.setClient(&surface);
    window.setRootViewController(root);
    surface.changes = 0;

    int completed = 0;
    first->present(second, true);
    second->present(first, true);  // is below it
    EXPECT_EQ(second->presentedViewController(), nullptr);
    root->present(first, true, [&] { ++completed; });
    EXPECT_EQ(window.presentedControllers(), (Chain{first, second}));
    EXPECT_EQ(second->window(), &window);
    EXPECT_EQ(second->presentingViewController(), first);
    EXPECT_EQ(completed, 0) << "not before the caller is done";
    foundation::MainQueue::drain();
    EXPECT_EQ(completed, 1);

    root->present(other, true);   // presents one already
    other->present(first, true);  // is presented already
    other->present(root, true);   // is a root controller
    other->present(other, true);
    EXPECT_EQ(other->presentedViewController(), nullptr);
    EXPECT_EQ(surface.changes, 1);

    second->dismiss(true, [&] { ++completed; });  // passes it on to its presenter
    EXPECT_EQ(window.presentedControllers(), (Chain{first}));
    first->present(second, false);
    root->dismiss(true);  // and all above it
    EXPECT_EQ(window.presentedControllers(), Chain{});
    EXPECT_EQ(first->presentedViewController(), nullptr);
    root->dismiss(true, [&] { ++completed; });  // nothing to dismiss
    foundation::MainQueue::drain();
    EXPECT_EQ(completed, 2);
    EXPECT_EQ(surface.changes, 4);
    root->present(first, true);
  }
  EXPECT_EQ(first->window(), nullptr) << "the window is gone, the screens are not";
}

}  // namespace
}  // namespace quorix::uikit
