#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/uikit/UIApplication.h"
#include "tests/core/OpenedAddresses.h"
#include "tests/core/TestWindow.h"
#include "tests/qt/FeeRow.h"
#include "tests/web/PageRow.h"

namespace quorix {
namespace {

using foundation::MainQueue;
using hosting::Key;
using hosting::PointerEvent;
using swiftui::Text;
using swiftui::View;
using testing::TestWindow;
using Phase = PointerEvent::Phase;

TEST(Session, ASheetClosesByEachOfItsWays) {
  TestWindow window(testing::FeeRow("4 €"));
  constexpr layout::Point beside{160, 20};
  const auto drag = [&](int pointer, double to, double milliseconds) {
    window.front().handle({Phase::pressed, {160, 500}, 0, pointer});
    window.front().handle({Phase::moved, {160, to}, milliseconds, pointer});
    window.front().handle({Phase::released, {160, to}, milliseconds, pointer});
  };
  const struct {
    const char* by;
    std::function<void()> perform;
    std::string reason = {};  ///< none: it stays open
  } rows[] = {
      {"its button", [&] { window.tap("Close 4 €"); }, "button"},
      {"a screen reader on it", [&] { window.front().activate(1); }, "button"},
      {"Escape", [&] { window.key(Key::escape); }, "key"},
      {"the Back key", [&] { window.key(Key::back), window.tap(beside); }, "key"},
      {"Enter on the first element", [&] { window.key(Key::next), window.key(Key::activate); },
       "button"},
      {"a tap beside", [&] { window.tap(beside); }, "outside"},
      {"a swipe", [&] { drag(3, 540, 20); }, "swipe"},
      {"the same with the mouse", [&] { drag(PointerEvent::mouse, 540, 20); }, "swipe"},
      {"the host, after a tap that closes nothing",
       [&] { window.act("Terms"), window.view().replaceView(testing::FeeRow("4 €")); }, "host"},
      {"a slow one", [&] { drag(3, 540, 500); }},
      {"a second finger",
       [&] {
         window.front().handle({Phase::pressed, {160, 500}, 0, 3});
         window.front().handle({Phase::pressed, beside, 5, 4});
         window.front().handle({Phase::released, beside, 9, 4});
         window.front().pointerLost();
         window.front().handle({Phase::released, beside, 9, 3});
       }},
      {"another key", [&] { EXPECT_FALSE(window.key(Key::pageBack)); }},
  };
  for (const auto& way : rows) {
    window.told.clear();
    window.act("Row 4 €");
    ASSERT_TRUE(window.sheet()) << way.by;
    EXPECT_EQ(&window.front(), window.topmost());
    EXPECT_EQ(window.told, "activated opened ") << way.by;
    window.told.clear();
    way.perform();
    window.settle();
    EXPECT_EQ(window.sheet() == nullptr, !way.reason.empty()) << way.by;
    EXPECT_EQ(window.told, way.reason.empty() ? "" : "closed:" + way.reason + " ") << way.by;
    window.key(Key::escape);
    window.settle();
  }
}

TEST(Session, TheViewMayGoWhileItsSheetIsUp) {
  TestWindow window(testing::FeeRow("4 €"));
  window.act("Row 4 €");
  const auto sheet = window.topmost()->weak();
  window.view().replaceView(testing::FeeRow("9 €"));
  window.settle();
  EXPECT_FALSE(window.sheet());
  EXPECT_TRUE(sheet.expired());
  window.act("Row 9 €");
  EXPECT_EQ(window.labels(), "Fee 9 €, Close 9 €, Terms");
}

struct Terms {
  static constexpr std::string_view typeName = "Terms";
  swiftui::State<bool> shown{true};
  auto states() const { return std::tie(shown); }
  View body() const {
    return View(Text::verbatim("Offer")).sheet(shown.binding(), testing::FeeRow("above"));
  }
};

TEST(Session, SheetsStandOnEachOtherAndCloseFromTheTop) {
  TestWindow window(Terms{});
  window.settle();
  window.act("Row above");
  ASSERT_EQ(window.sheets().size(), 2U);
  EXPECT_EQ(window.labels(), "Fee above, Close above, Terms");
  window.key(Key::escape);
  window.settle();
  EXPECT_EQ(window.labels(), "Row above");
  window.act("Row above");
  window.host->setRoot(View());
  window.settle();
  EXPECT_TRUE(window.sheets().empty()) << "the lower one takes the upper one along";
  EXPECT_EQ(window.told, "opened closed:host ") << "of the lower one alone";
}

TEST(Session, AWindowPresentsControllersOverItself) {
  TestWindow one(testing::FeeRow("1 €")), two(testing::FeeRow("2 €"));
  const auto active = [] {
    std::string states;
    for (const auto& scene : uikit::UIApplication::shared().connectedScenes()) {
      const bool is = scene->activationState() == uikit::UIScene::ActivationState::foregroundActive;
      states += is ? 'a' : '-';
    }
    return states;
  };
  for (TestWindow* window : {&one, &two}) {
    window->tap(window == &one ? "Row 1 €" : "Row 2 €");
    EXPECT_EQ(active(), window == &one ? "a-" : "-a");
  }
  const auto scene = std::static_pointer_cast<uikit::UIWindowScene>(
      uikit::UIApplication::shared().connectedScenes().front());
  const auto root = scene->windows().front()->rootViewController();
  const auto page = [](const char* name) {
    auto made = std::make_shared<uikit::UIViewController>();
    made->view()->setAccessibilityLabel(name);
    return made;
  };
  one.settle();
  one.key(Key::escape);
  one.settle();
  const auto lower = page("lower");
  one.told.clear();
  root->present(lower, true);
  lower->present(page("upper"), true);
  one.settle();
  EXPECT_EQ(one.sheets().size(), 2U);
  EXPECT_EQ(one.labels(), "upper");
  one.key(Key::escape);
  one.settle();
  EXPECT_EQ(lower->presentedViewController(), nullptr) << "the user closed it";
  root->dismiss(true);
  one.settle();
  root->present(lower, true);
  one.settle();
  root->dismiss(true);
  root->present(lower, true);  // at once, which leaves it up
  one.settle();
  one.key(Key::escape);
  one.settle();
  EXPECT_FALSE(one.sheet());
  EXPECT_EQ(one.told, "opened closed:host opened closed:key ");
}

// Pages.

/// An engine that answers when the test wants.
struct FakeEngine final : hosting::PageEngine {
  explicit FakeEngine(Client& page) : client(page) {}
  bool isShown() const override { return true; }
  void load(const foundation::URL&) override { log += "load "; }
  void stopLoad(std::chrono::milliseconds) override { log += "stop "; }
  void ask() override { log += "ask "; }
  bool canGoBack() const override { return hasHistory; }
  void goBack() override { log += "back "; }
  void goForward() override { log += "forward "; }

  Client& client;
  std::string log;
  bool hasHistory = false;
};

class PageWindow final : public testing::TestText, public hosting::ViewWindow {
 public:
  PageWindow()
      : ViewWindow(text, {{}, false}, testing::PageRow{[this] { return content; }}, {320, 640}) {
    content->settings.allowsBackForwardNavigationGestures = true;
    content->onProcessEnded = [this] { ++ends; };
    content->onLoadFailed = [this] { ++failures; };
    content->load({foundation::URL::parse("https://modules.quorix.example/page").value()});
    MainQueue::install({}, [this](auto, MainQueue::Work work) { timers.push_back(work); });
  }
  ~PageWindow() override { MainQueue::install({}); }

  void settle() {
    while (frame(0) || MainQueue::drain() > 0) {
    }
    frame(0);  // pages open in the frame after the first
  }
  void open() {
    settle();
    view().activate(0);
    settle();
  }
  void key(Key key) {
    front().handle(hosting::KeyEvent{key});
    settle();
  }
  /// All time limits run out.
  void wait() {
    for (const auto& work : std::exchange(timers, {})) work();
    settle();
  }

  std::shared_ptr<webkit::WebContent> content = std::make_shared<webkit::WebContent>();
  std::deque<MainQueue::Work> timers;
  FakeEngine* engine = nullptr;
  bool hasEngine = true;
  int ends = 0;
  int failures = 0;

 private:
  bool showsPages() const override { return true; }
  std::unique_ptr<hosting::PageEngine> openPage(const render::EmbedItem&,
                                                hosting::PageEngine::Client& client) override {
    auto made = hasEngine ? std::make_unique<FakeEngine>(client) : nullptr;
    engine = made.get();
    return made;
  }
};

TEST(SessionPage, KeysLeadBackAndForwardOrCloseTheSheet) {
  const struct {
    Key key;
    bool hasHistory;
    const char* log;
    bool stays;
  } rows[] = {
      {Key::pageBack, true, "load back ", true}, {Key::pageForward, false, "load forward ", true},
      {Key::back, true, "load ask back ", true}, {Key::back, false, "load ", false},
      {Key::escape, true, "load ", false},
  };
  for (const auto& row : rows) {
    PageWindow window;
    window.open();
    ASSERT_TRUE(window.engine);
    window.engine->hasHistory = row.hasHistory;
    window.front().handle(hosting::KeyEvent{row.key});
    const std::string asked = window.engine->log;
    window.engine->client.answered();
    EXPECT_EQ(window.engine->log, row.log) << static_cast<int>(row.key) << asked;
    window.settle();
    EXPECT_EQ(!window.sheets().empty(), row.stays) << static_cast<int>(row.key);
  }
}

TEST(SessionPage, HasLimitedTime) {
  for (const bool answers : {true, false}) {
    PageWindow window;
    window.open();
    window.engine->client.closingKeyGiven();
    if (answers) window.engine->client.answered();
    window.wait();
    EXPECT_EQ(!window.sheets().empty(), answers) << "a page that hangs cannot keep its sheet open";
  }
  for (const bool ends : {true, false}) {
    PageWindow window;
    window.open();
    window.engine->client.loading(0);
    window.engine->client.loading(30);
    if (ends) window.engine->client.loadEnded();
    window.wait();
    EXPECT_EQ(window.engine->log, ends ? "load " : "load stop ");
    EXPECT_EQ(window.failures, 0) << "what has come stays";
  }
  PageWindow window;
  window.open();
  window.engine->client.loading(0);
  window.wait();
  window.settle();
  EXPECT_EQ(window.failures, 1);
}

TEST(SessionPage, ThatEndsTellsItsContentOutsideTheEnginesCall) {
  PageWindow window;
  window.open();
  window.engine->client.processEnded();
  EXPECT_EQ(window.ends, 0);
  window.settle();
  EXPECT_EQ(window.ends, 1);
}

TEST(SessionPage, WithoutAnEngineOpensOutsideAndTheSheetCloses) {
  const testing::OpenedAddresses opened;
  PageWindow window;
  window.hasEngine = false;
  window.open();
  window.settle();
  EXPECT_TRUE(window.sheets().empty());
  EXPECT_EQ(opened.list(), std::vector<std::string>{"https://modules.quorix.example/page"});
}

}  // namespace
}  // namespace quorix
