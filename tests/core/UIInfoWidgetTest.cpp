#include "QuorixWidgets/info/UIInfoWidget.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <sstream>

#include "QuorixWidgets/info/InfoTitle.h"
#include "QuorixWidgets/info/UIApplication.h"
#include "QuorixWidgets/overlay/WebViewController.h"
#include "platform/swiftui/UIViewRepresentable.h"
#include "platform/uikit/UIWindowScene.h"
#include "tests/core/OtherResources.h"
#include "tests/core/TestWindow.h"

using namespace quorix;
using foundation::MainQueue;
using quorix::testing::OtherResources;
using quorix::testing::TestWindow;
using State = uikit::UIScene::ActivationState;

namespace {

std::shared_ptr<UIInfoWidget> widget(const UIKitStyleConfiguration& style = {},
                                     std::optional<std::string> name = std::nullopt) {
  return UIInfoWidget::make(std::make_shared<UIInfoWidgetViewModel>(std::move(name), "en", style));
}

/// An app in words: the scenes, each its state and what tells its windows from plain ones, as in
/// "active plain key+hidden / background high".
struct App {
  explicit App(const std::string& words) {
    std::istringstream all(words);
    for (std::string scene; std::getline(all, scene, '/');) add(scene);
  }
  ~App() {
    for (const auto& scene : scenes) uikit::UIApplication::shared().disconnect(scene);
  }
  App(const App&) = delete;
  App& operator=(const App&) = delete;

  void add(const std::string& scene) {
    static const std::map<std::string, State> states = {{"active", State::foregroundActive},
                                                        {"inactive", State::foregroundInactive},
                                                        {"background", State::background},
                                                        {"unattached", State::unattached}};
    std::istringstream words(scene);
    std::string word;
    words >> word;
    scenes.push_back(std::make_shared<uikit::UIWindowScene>());
    scenes.back()->setActivationState(states.at(word));
    while (words >> word) {
      const auto is = [&](const char* what) { return word.find(what) != std::string::npos; };
      const auto window = std::make_shared<uikit::UIWindow>();
      if (is("key")) window->makeKey();
      window->setHidden(is("hidden"));
      if (is("high")) window->setWindowLevel(uikit::UIWindow::alertLevel);
      scenes.back()->addWindow(window);
    }
    uikit::UIApplication::shared().connect(scenes.back());
  }

  /// "scene window", counted from 0; empty for no window of the app.
  std::string placeOf(const std::shared_ptr<uikit::UIWindow>& window) const {
    for (std::size_t i = 0; i < scenes.size(); ++i) {
      const auto& windows = scenes[i]->windows();
      const auto at = std::find(windows.begin(), windows.end(), window);
      if (at != windows.end())
        return std::to_string(i) + " " + std::to_string(at - windows.begin());
    }
    return {};
  }
  std::vector<std::shared_ptr<uikit::UIWindowScene>> scenes;
};

}  // namespace

TEST(InfoTitle, StandsAroundTheFirstNumber) {
  using Parts = std::vector<InfoTitlePart>;
  const InfoTitlePart number{"20%", true};
  EXPECT_EQ(splitInfoTitle("Return rate of 20% applies", "20%"),
            (Parts{{"Return rate of "}, number, {" applies"}}));
  EXPECT_EQ(splitInfoTitle("20% is your rate", "20%"), (Parts{number, {" is your rate"}}));
  EXPECT_EQ(splitInfoTitle("Your rate is 20%", "20%"), (Parts{number, {"Your rate is "}}));
  EXPECT_EQ(splitInfoTitle("A 20% B 20% C", "20%"), (Parts{{"A "}, number, {" B "}}));
  EXPECT_EQ(splitInfoTitle("20%20%", "20%"), Parts{});
}

TEST(UIInfoWidget, LaysOutTheTitleOverTheLink) {
  TestWindow window(swiftui::hosting(widget()), {}, {320, 98});
  EXPECT_EQ(window.shown().accessibility.size(), 1u) << "the title comes with the next turn";
  window.settle();
  EXPECT_EQ(render::printAccessibility(window.shown()),
            "text 16 16 288 33 \"Shoppers who return less than 20% of what they buy pay a lower "
            "return fee.\"\nlink 16 65 59 17 \"Read more\" acts\n");
  EXPECT_EQ(window.host->sizeThatFits({320, std::nullopt}), (layout::Size{320, 98}));
}

TEST(UIInfoWidget, SetsRunsLinkAndGround) {
  graphics::RGBA red{255, 0, 0, 255};
  TestWindow window(
      swiftui::hosting(widget({std::nullopt, "No-Such-Face", uikit::UIColor::fixed(red), true})));
  window.settle();
  std::vector<std::string> looks;
  for (const auto& item : window.shown().items) {
    const auto* text = std::get_if<render::TextItem>(&item);
    for (const auto& run : text ? text->text.runs : std::vector<text::Run>{}) {
      looks.push_back(run.text + "|" + run.font.name + (run.thickUnderline ? "|thick" : ""));
      EXPECT_EQ(run.font.points, 13);
    }
  }
  EXPECT_THAT(looks, ::testing::ElementsAre(
                         "Shoppers who return less than |Saans-Regular", "20%|Saans-Medium",
                         " of what they buy pay a lower return fee.|Saans-Regular",
                         "Read more|Saans-Regular|thick"));
  EXPECT_EQ(std::get<render::FillItem>(window.shown().items.front()).color, red);
  EXPECT_EQ(std::get<render::StrokeItem>(window.shown().items.back()).width, 1);
  ASSERT_EQ(window.shown().hitAreas.size(), 1u) << "only the link reacts";
}

TEST(UIInfoWidget, FollowsItsModelWithoutKeepingItself) {
  const auto model =
      std::make_shared<UIInfoWidgetViewModel>(std::nullopt, "en", UIKitStyleConfiguration{});
  auto shown = UIInfoWidget::make(model);
  const std::weak_ptr<UIInfoWidget> watched = shown;
  model->titleText = uikit::NSAttributedString("Another title");
  {
    TestWindow window(swiftui::hosting(shown));
    window.settle();
    EXPECT_EQ(window.element("Another title").role, render::Role::staticText);
  }
  model->titleText = uikit::NSAttributedString("Too late");
  shown.reset();
  EXPECT_TRUE(watched.expired());
  MainQueue::drain();
}

TEST(UIInfoWidget, PresentsTheOverlayOverTheTopmostScreen) {
  TestWindow window(swiftui::hosting(widget({}, "Ann")));
  window.tap("Read more");  // into nowhere: there is no window
  App app("active plain");
  window.tap("Read more");  // nor a screen
  const auto root = std::make_shared<uikit::UIViewController>();
  const auto alert = std::make_shared<uikit::UIViewController>();
  app.scenes[0]->windows()[0]->setRootViewController(root);
  root->present(alert, true);
  window.tap(layout::Point{100, 20});  // the title
  EXPECT_EQ(alert->presentedViewController(), nullptr);
  window.tap("Read more");
  const auto overlay =
      std::dynamic_pointer_cast<WebViewController>(alert->presentedViewController());
  ASSERT_NE(overlay, nullptr);
  EXPECT_EQ(overlay->userName, "Ann");
  EXPECT_EQ(overlay->locale, "en");
  EXPECT_EQ(overlay->token, std::nullopt);
  EXPECT_TRUE(overlay->showCloseButton);
  window.tap("Read more");  // once more: nothing remembers the first
  EXPECT_NE(overlay->presentedViewController(), nullptr);
}

TEST(UIApplication, FindsTheKeyWindow) {
  const struct {
    const char *name, *app, *found;
  } rows[] = {
      {"no scene", "", ""},
      {"the key window", "active plain key", "0 1"},
      {"even a hidden one", "active plain key+hidden", "0 1"},
      {"the first in plain sight", "active hidden high plain plain", "0 2"},
      {"none in plain sight", "active hidden high", "0 0"},
      {"an active scene without windows", "active / background key", ""},
      {"the first active scene", "active hidden / active key", "0 0"},
      {"after others", "background key / active plain", "1 0"},
      {"none active", "unattached plain / inactive plain key", "1 1"},
      {"none active, background", "background key", "0 0"},
      {"none active, no key", "background plain / unattached high", ""},
  };
  // A scene of another kind is passed over wherever it stands.
  const auto other = std::make_shared<uikit::UIScene>();
  other->setActivationState(State::foregroundActive);
  uikit::UIApplication::shared().connect(other);
  for (const auto& row : rows) {
    const App app(row.app);
    const auto window = UIApplication::getKeyWindow();
    EXPECT_EQ(app.placeOf(window), row.found) << row.name;
    EXPECT_EQ(window != nullptr, *row.found != '\0') << row.name;
  }
  uikit::UIApplication::shared().disconnect(other);
}

TEST(UIInfoWidgetDeath, StopsOnWhatItCannotBe) {
  EXPECT_DEATH(
      UIInfoWidget::initWithCoder(),
      "QuorixWidgets/UIInfoWidget: Fatal error: init\\(coder:\\) has not been implemented");
  EXPECT_DEATH(UIInfoWidget::initWithFrame({}), "unimplemented initializer 'init\\(frame:\\)'");
  const auto model =
      std::make_shared<UIInfoWidgetViewModel>(std::nullopt, "en", UIKitStyleConfiguration{});
  UIInfoWidget::make(model);  // colours and faces are there before their files go
  const std::string file(foundation::Bundle::embedded()->data("UIInfoWidget.xib")->text());
  const auto without = [&](const std::string& outlet) {
    const auto start = file.find("<outlet property=\"" + outlet);
    return std::string(file).erase(start, file.find("/>", start) + 2 - start);
  };
  const std::pair<std::map<std::string, std::string>, const char*> rows[] = {
      {{}, "No interface file named 'UIInfoWidget'"},
      {{{"UIInfoWidget.xib", "<html/>"}}, "UIInfoWidget.xib:1: not an interface file"},
      {{{"UIInfoWidget.xib", without("contentView")}}, "Unexpectedly found nil"},
      {{{"UIInfoWidget.xib", without("titleLabel")}}, "Unexpectedly found nil"},
      {{{"UIInfoWidget.xib", without("linkLabel")}}, "Unexpectedly found nil"},
  };
  for (const auto& [files, message] : rows) {
    const OtherResources broken(files);
    EXPECT_DEATH(UIInfoWidget::make(model), message);
  }
  const auto untitled = OtherResources::english("\"info-widget-title\" = \"\";");
  EXPECT_DEATH(UIInfoWidgetViewModel(std::nullopt, "en", {}), "Index out of range");
}
