#include "QuorixWidgets/info/UIInfoWidget.h"

#include <deque>
#include <sstream>

#include "QuorixWidgets/info/InfoWidgetViewModel.h"
#include "QuorixWidgets/overlay/WebViewController.h"
#include "platform/swiftui/UIViewRepresentable.h"
#include "platform/uikit/ViewPrinter.h"
#include "tests/core/Resources.h"
#include "tests/core/TestWindow.h"
#include "tests/core/Vectors.h"

using namespace quorix;
using foundation::MainQueue;
using quorix::testing::itemsOf;
using quorix::testing::TestWindow;
using State = uikit::UIScene::ActivationState;

namespace {

std::shared_ptr<UIInfoWidgetViewModel> modelOf(const UIKitStyleConfiguration& style = {},
                                               std::optional<std::string> name = std::nullopt,
                                               const std::string& locale = "en") {
  return std::make_shared<UIInfoWidgetViewModel>(std::move(name), locale, style);
}

/// The app's scenes while it exists, in words: a state with a colon, then its windows.
struct App {
  explicit App(const std::string& words) {
    const std::map<std::string, State> states = {{"active:", State::foregroundActive},
                                                 {"inactive:", State::foregroundInactive},
                                                 {"background:", State::background},
                                                 {"unattached:", State::unattached}};
    std::istringstream all(words);
    for (std::string word; all >> word;) {
      if (states.contains(word)) {
        scenes.push_back(std::make_shared<uikit::UIWindowScene>());
        scenes.back()->setActivationState(states.at(word));
        uikit::UIApplication::shared().connect(scenes.back());
        continue;
      }
      const auto window = std::make_shared<uikit::UIWindow>();
      if (word.find("key") != word.npos) window->makeKey();
      window->setHidden(word.find("hidden") != word.npos);
      if (word == "high") window->setWindowLevel(uikit::UIWindow::normalLevel + 1);
      scenes.back()->addWindow(window);
    }
  }
  ~App() {
    for (const auto& scene : scenes) uikit::UIApplication::shared().disconnect(scene);
  }
  App(const App&) = delete;
  App& operator=(const App&) = delete;

  std::vector<std::shared_ptr<uikit::UIWindowScene>> scenes;
};

}  // namespace

TEST(UIInfoWidget, IsAsDesigned) {
  const graphics::RGBA red{255, 0, 0, 255};
  const UIKitStyleConfiguration styled{std::nullopt, "No-Such-Face", uikit::UIColor::fixed(red),
                                       true};
  using enum layout::LayoutDirection;
  const struct {
    const char* file;
    UIKitStyleConfiguration style;
    const char* locale;
    layout::LayoutDirection direction;
  } rows[] = {{"imperative-en", styled, "en", leftToRight},
              {"imperative-ar", {}, "ar", rightToLeft}};
  for (const auto& row : rows) {
    const auto view = UIInfoWidget::make(modelOf(row.style, std::nullopt, row.locale));
    TestWindow window(swiftui::hosting(view), {.direction = row.direction, .language = {}},
                      {320, 98});
    EXPECT_EQ(window.shown().accessibility.size(), 1u) << "the title comes with the next turn";
    window.settle();
    EXPECT_EQ(uikit::printViews(*view) + "\nframes\n" + render::printFrames(window.shown()) +
                  "\nread out\n" + render::printAccessibility(window.shown()),
              contentsOf("info/" + std::string(row.file) + ".txt"))
        << row.file;
    EXPECT_EQ(window.host->sizeThatFits({320, std::nullopt}), (layout::Size{320, 98}));
  }
}

TEST(UIInfoWidget, EndsWhileItsModelLives) {
  const auto model = modelOf();
  auto shown = UIInfoWidget::make(model);
  const std::weak_ptr<UIInfoWidget> watched = shown;
  TestWindow(swiftui::hosting(shown)).settle();
  model->titleText = uikit::NSAttributedString("Too late");
  shown.reset();
  EXPECT_TRUE(watched.expired());
  MainQueue::drain();
}

TEST(UIInfoWidget, ShowsTitlesOneByOne) {
  const auto model = modelOf();
  std::deque<MainQueue::Work> turns;
  MainQueue::install([&](MainQueue::Work work) { turns.push_back(std::move(work)); });
  const auto shown = UIInfoWidget::make(model);
  model->titleText = uikit::NSAttributedString("First");
  model->titleText = uikit::NSAttributedString("Second");
  std::vector<std::string> seen;
  while (!turns.empty()) {
    std::exchange(turns.front(), nullptr)();
    turns.pop_front();
    const std::string views = uikit::printViews(*shown);
    seen.push_back(views.find("\"First\"") != views.npos    ? "First"
                   : views.find("\"Second\"") != views.npos ? "Second"
                                                            : "the model's");
  }
  MainQueue::install({});
  EXPECT_EQ(seen, (std::vector<std::string>{"the model's", "First", "Second"}));
}

TEST(UIInfoWidget, SharesTextsThatAHostChangesInOneWidgetAlone) {
  const auto one = UIInfoWidget::make(modelOf()), other = UIInfoWidget::make(modelOf());
  MainQueue::drain();
  const auto label = [](const auto& shown, std::size_t index) {
    return std::static_pointer_cast<uikit::UILabel>(shown->subviews()[0]->subviews()[index]);
  };
  for (const std::size_t index : {0, 1}) label(one, index)->setFont(uikit::UIFont::system(40));
  quorix::testing::FixedWidthText engine;
  const auto drawn = [&](const auto& shown) {
    return itemsOf<render::TextItem>(uikit::UIViewContent(shown).scene({343, 96}, {}, engine));
  };
  for (const std::size_t index : {0, 1}) {
    EXPECT_EQ(drawn(one)[index].text.runs.front().font.points, 40);
    EXPECT_EQ(drawn(other)[index].text.runs.front().font.points, 13);
  }
}

TEST(UIInfoWidget, PresentsTheOverlayOverTheTopmostScreen) {
  TestWindow window(swiftui::hosting(UIInfoWidget::make(modelOf({}, "Ann"))));
  // Taps on the host directly. A user's tap would make this window the key window, which would be
  // found.
  const auto tap = [&](layout::Point point) {
    window.host->pointerPressed(point);
    window.host->pointerReleased(point);
  };
  const auto read = [&] { tap(TestWindow::middle(window.element("Read more").frame)); };
  read();  // without effect: there is no window
  App app("active: plain");
  read();  // nor a controller
  const auto root = std::make_shared<uikit::UIViewController>();
  const auto alert = std::make_shared<uikit::UIViewController>();
  app.scenes[0]->windows()[0]->setRootViewController(root);
  root->present(alert, true);
  tap({100, 20});  // the title
  EXPECT_EQ(alert->presentedViewController(), nullptr);
  read();
  const auto overlay =
      std::dynamic_pointer_cast<WebViewController>(alert->presentedViewController());
  ASSERT_NE(overlay, nullptr);
  EXPECT_EQ(overlay->userName, "Ann");
  EXPECT_EQ(overlay->locale, "en");
  EXPECT_EQ(overlay->token, std::nullopt);
  EXPECT_TRUE(overlay->showCloseButton);
  read();  // each tap presents again
  EXPECT_NE(overlay->presentedViewController(), nullptr);
}

TEST(UIApplication, FindsTheKeyWindow) {
  // Skips scenes of another class at any place in the list.
  const auto other = std::make_shared<uikit::UIScene>();
  other->setActivationState(State::foregroundActive);
  uikit::UIApplication::shared().connect(other);
  forEachRow("key_windows", [](simdjson::dom::element row) {
    const App app(::text(row, "app"));
    std::shared_ptr<uikit::UIWindow> expected;
    if (const auto at = row["found"]; !at.is_null()) {
      expected = app.scenes[std::uint64_t(at.at(0))]->windows()[std::uint64_t(at.at(1))];
    }
    EXPECT_EQ(UIApplication::getKeyWindow(), expected);
  });
  uikit::UIApplication::shared().disconnect(other);
}

TEST(UIInfoWidgetDeath, StopsOnWhatItCannotBe) {
  EXPECT_DEATH(
      UIInfoWidget::initWithCoder(),
      "QuorixWidgets/UIInfoWidget: Fatal error: init\\(coder:\\) has not been implemented");
  EXPECT_DEATH(UIInfoWidget::initWithFrame({}), "unimplemented initializer 'init\\(frame:\\)'");
  const auto model = modelOf();
  UIInfoWidget::make(model);  // loads colors and faces before their files are removed
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
    const quorix::testing::OtherResources broken(files);
    EXPECT_DEATH(UIInfoWidget::make(model), message);
  }
}
