#include <deque>

#include "platform/hosting/SheetPanel.h"
#include "tests/core/OpenedAddresses.h"
#include "tests/core/TestWindow.h"
#include "tests/web/PageRow.h"

namespace quorix {
namespace {

using foundation::MainQueue;
using hosting::Key;
using Phase = hosting::PointerEvent::Phase;

/// An engine that answers when the test calls it.
struct FakeEngine final : hosting::PageEngine {
  explicit FakeEngine(Client& page) : client(page) {}
  bool isShown() const override { return true; }
  void load(const foundation::URL&) override { log += "load "; }
  void stopLoad(std::chrono::milliseconds) override { log += "stop "; }
  void ask(std::string_view script) override { log += std::string(script) + ' '; }
  bool canGo(hosting::HistoryStep) const override { return hasHistory; }
  void go(hosting::HistoryStep step) override {
    log += step == hosting::HistoryStep::back ? "back " : "forward ";
  }

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
    frame(0);  // pages open after the first frame
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
  /// Lets all time limits expire.
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

TEST(PagePlace, ReachesTheTopOnlyBetweenTheCornersAndWhereThePageCanBeCut) {
  const layout::Rect panel{{}, {360, 400}};
  const struct {
    const char* what;
    layout::Rect frame;
    double top, strip, radius;  ///< `top` of the room
    bool isAtTop;
    bool clips = true;
    double scale = 2;
    std::uint8_t opacity = 255;
  } rows[] = {
      {"all of the panel", panel, 12, 12, 12, true},
      {"a renderer that cannot cut", panel, 12, 0, 0, false, false},
      {"below a heading", {{0, 60}, {360, 340}}, 60, 0, 0, false},
      {"into the corners", {{0, 4}, {360, 396}}, 12, 8, 8, false},
      {"beside a part that the device covers", {{6, 0}, {354, 400}}, 12, 12, 12, false},
      {"on a translucent ground", panel, 12, 12, 12, false, true, 2, 128},
      {"a radius of 31.5 pixels", panel, 32 / 2.625, 32 / 2.625, 12, true, true, 2.625},
  };
  for (const auto& row : rows) {
    render::Scene scene;
    scene.size = panel.size;
    scene.items = {render::EmbedItem{row.frame, {}, {0, 0, 0, row.opacity}}};
    hosting::SheetGeometry::roundTop(scene, panel);
    const auto place = hosting::PagePlace::of(std::get<render::EmbedItem>(scene.items.front()),
                                              scene, row.scale, row.clips);
    EXPECT_DOUBLE_EQ(place.room.top(), row.top) << row.what;
    EXPECT_DOUBLE_EQ(place.room.bottom(), 400) << row.what;
    EXPECT_DOUBLE_EQ(place.strip, row.strip) << row.what;
    EXPECT_EQ(place.radius, row.radius) << row.what;
    EXPECT_EQ(place.isAtTop, row.isAtTop) << row.what;
  }
}

TEST(SessionPage, KeysLeadBackAndForwardOrCloseTheSheet) {
  const struct {
    Key key;
    bool hasHistory;
    const char* log;
    bool stays;
    bool hasScripts = true;
  } rows[] = {
      {Key::pageBack, true, "load back ", true},
      {Key::pageForward, false, "load forward ", true},
      {Key::back, true, "load 'alive' back ", true},
      {Key::back, true, "load back ", true, false},
      {Key::back, false, "load ", false},
      {Key::escape, true, "load ", false},
  };
  for (const auto& row : rows) {
    PageWindow window;
    window.content->settings.allowsContentJavaScript = row.hasScripts;
    window.open();
    ASSERT_TRUE(window.engine);
    window.engine->hasHistory = row.hasHistory;
    window.front().handle(hosting::KeyEvent{row.key});
    window.engine->client.answered("alive");
    EXPECT_EQ(window.engine->log, row.log) << static_cast<int>(row.key);
    window.settle();
    EXPECT_EQ(!window.sheets().empty(), row.stays) << static_cast<int>(row.key);
  }
}

TEST(SessionPage, SwipesLeadBackAndForward) {
  constexpr hosting::TrackpadEvent right{true, true, 100, 0, 1.7e12};
  const std::string asks = "load quorixScrollSince(1700000000000) ";
  const struct {
    bool hasHistory, allowed, mirrored;
    const char* answer;
    std::string byFinger, byTrackpad;
  } rows[] = {
      {true, true, false, "unused", "load back ", asks + "back "},
      {true, true, true, "unused", "load forward ", asks + "forward "},
      {true, true, false, "", "load back ", asks},
      {true, true, false, "alive", "load back ", asks},
      {false, true, false, "unused", "load ", "load "},
      {true, false, false, "unused", "load ", "load "},
  };
  for (const auto& row : rows) {
    for (const bool byFinger : {true, false}) {
      PageWindow window;
      window.content->settings.allowsBackForwardNavigationGestures = row.allowed;
      hosting::Settings settings{{}, false};
      if (row.mirrored) settings.environment.direction = layout::LayoutDirection::rightToLeft;
      window.setSettings(settings);
      window.open();
      window.engine->hasHistory = row.hasHistory;
      auto& client = window.engine->client;
      if (byFinger) {
        client.touched({Phase::pressed, {5, 100}, 1, 320});
        EXPECT_EQ(client.touched({Phase::moved, {90, 100}, 1, 320}), row.hasHistory && row.allowed);
        client.touched({Phase::released, {90, 100}, 1, 320});
      } else {
        client.scrolled(right);
        client.answered(row.answer);
      }
      EXPECT_EQ(window.engine->log, byFinger ? row.byFinger : row.byTrackpad);
    }
  }
}

TEST(SessionPage, LeavesTheAppOnceForEachGesture) {
  const struct {
    std::vector<std::string> steps;  ///< of the user, or addresses that the page or a frame wants
    std::vector<std::string> leave;
  } rows[] = {
      {{"page https://a/"}, {}},
      {{"page sms:1", "page sms:2"}, {"sms:1"}},
      {{"frame sms:1"}, {}},
      {{"tap", "frame sms:1", "frame sms:2"}, {"sms:1"}},
      {{"tap", "page sms:1", "tap", "page sms:2"}, {"sms:1", "sms:2"}},
      {{"swipe", "frame sms:1"}, {}},
      {{"swipe", "tap", "frame sms:1"}, {"sms:1"}},
  };
  for (const auto& row : rows) {
    PageWindow window;
    std::vector<std::string> left;
    window.content->onNewWindow = [&](const auto& url) { left.push_back(url->absoluteString()); };
    window.open();
    window.engine->hasHistory = true;
    auto& page = window.engine->client;
    for (const std::string& step : row.steps) {
      const bool swipes = step == "swipe";
      if (swipes || step == "tap") {
        page.touched({Phase::pressed, {5, 100}, 1, 320});
        for (const int fingers : {1, 2}) {  // the second one comes late
          EXPECT_EQ(page.touched({Phase::moved, {swipes ? 90. : 5., 100}, fingers, 320}), swipes);
        }
        page.gestured();
        EXPECT_EQ(page.touched({Phase::released, {5, 100}, 1, 320}), swipes);
        continue;
      }
      const std::string address = step.substr(step.find(' ') + 1),
                        scheme = address.substr(0, address.find(':'));
      EXPECT_EQ(page.mayNavigate(scheme, address, step.starts_with("page")), scheme == "https");
    }
    window.settle();
    EXPECT_EQ(left, row.leave) << ::testing::PrintToString(row.steps);
  }
}

TEST(SessionPage, HasLimitedTime) {
  for (const bool answers : {true, false}) {
    PageWindow window;
    window.open();
    window.engine->client.closingKeyGiven();
    window.engine->client.answered(answers ? "alive" : "");
    window.wait();
    EXPECT_EQ(!window.sheets().empty(), answers) << "a page that hangs cannot keep its sheet open";
  }
  for (const bool ends : {true, false}) {
    PageWindow window;
    window.open();
    window.engine->client.loading(0);
    window.engine->client.loading(30);
    if (ends) window.engine->client.loadEnded(0);
    window.wait();
    EXPECT_EQ(window.engine->log, ends ? "load " : "load stop ");
    EXPECT_EQ(window.failures, 0) << "what has come stays";
  }
  PageWindow window;
  window.open();
  window.engine->client.loading(0);
  window.wait();
  EXPECT_EQ(window.failures, 1);
}

TEST(SessionPage, FailsWithAnErrorOfTheNetwork) {
  constexpr int aborted = -3, connectionClosed = -100, unknownHost = -105, notFound = 404;
  for (const int error : {0, aborted, -99, connectionClosed, unknownHost, notFound}) {
    PageWindow window;
    window.open();
    window.engine->client.loadEnded(error);
    window.settle();
    EXPECT_EQ(window.failures, error == connectionClosed || error == unknownHost) << error;
  }
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
