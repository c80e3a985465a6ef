#include <gtest/gtest.h>

#include <memory>

#include "QuorixWidgets/info/UIInfoWidget.h"
#include "platform/swiftui/UIViewRepresentable.h"
#include "platform/uikit/UIApplication.h"
#include "platform/uikit/UILabel.h"
#include "platform/uikit/UIView.h"
#include "platform/uikit/UIViewController.h"
#include "tests/qt/Screens.h"

namespace quorix::testing {
namespace {

/// A text that does something when it is tapped.
std::shared_ptr<uikit::UILabel> button(const std::string& text, std::function<void()> action) {
  auto label = std::make_shared<uikit::UILabel>();
  label->setText(text);
  label->setFrame({{20, 20}, {200, 20}});
  label->setUserInteractionEnabled(true);
  label->addGestureRecognizer(std::make_shared<uikit::UITapGestureRecognizer>(
      label, [action](uikit::UILabel&, uikit::UITapGestureRecognizer&) { action(); }));
  return label;
}

struct Page : uikit::UIViewController {
  explicit Page(std::string text) : title(std::move(text)) {}
  void viewDidLoad() override {
    const auto close = [this] { dismiss(true); };
    view()->addSubview(button(title, close));
  }
  std::string title;
};

/// Presents a page of that title over the top-most screen of the window in use.
void presentPage(const std::string& title) {
  const auto window = UIApplication::getKeyWindow();
  ASSERT_TRUE(window);
  auto top = window->rootViewController();
  while (top->presentedViewController()) top = top->presentedViewController();
  top->present(std::make_shared<Page>(title), true);
}

swiftui::View opener(const std::string& page) {
  return swiftui::hosting(button("Open " + page, [page] { presentPage(page); }));
}

template <class>
struct WindowScene : ::testing::Test {};
TYPED_TEST_SUITE(WindowScene, Screens, ScreenName);

TYPED_TEST(WindowScene, PresentsOverTheWindowInUseAndEndsWithIt) {
  const auto scenes = [] { return uikit::UIApplication::shared().connectedScenes().size(); };
  const std::size_t before = scenes();
  TypeParam one;
  TypeParam two;
  one.add(opener("first"), kPlace);
  auto* second = two.add(opener("second"), kPlace);
  one.click("Open first");
  EXPECT_TRUE(one.shows("first"));
  EXPECT_FALSE(two.shows("first"));
  two.focus(second);
  two.key(Qt::Key_Tab);
  two.click("Open second");
  EXPECT_TRUE(two.shows("second"));
  EXPECT_FALSE(one.shows("second"));
  EXPECT_EQ(scenes(), before + 2);
  two.closeWindow();
  EXPECT_EQ(scenes(), before + 1);
}

}  // namespace
}  // namespace quorix::testing
