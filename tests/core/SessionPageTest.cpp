#include <deque>

#include "platform/hosting/SheetPanel.h"
#include "platform/hosting/ViewWindow.h"
#include "platform/webkit/PageRules.h"
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
  void ask() override { log += "ask "; }
  void askForScroll(double) override { log += "ask "; }
  bool canGoBack() const override { return hasHistory; }
  bool canGoForward() const override { return hasHistory; }
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
    window.engine->client.answered();
    EXPECT_EQ(window.engine->log, row.log) << static_cast<int>(row.key);
    window.settle();
    EXPECT_EQ(!window.sheets().empty(), row.stays) << static_cast<int>(row.key);
  }
}

TEST(SessionPage, SwipesLeadBackAndForward) {
  constexpr hosting::TrackpadEvent right{true, true, 100, 0, 0};
  const struct {
    bool hasHistory, allowed, mirrored, used;
    const char* byFinger;
    const char* byTrackpad;
  } rows[] = {
      {true, true, false, false, "load back ", "load ask back "},
      {true, true, true, false, "load forward ", "load ask forward "},
      {true, true, false, true, "load back ", "load ask "},
      {false, true, false, false, "load ", "load "},
      {true, false, false, false, "load ", "load "},
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
        client.scrollAnswered(row.used);
      }
      EXPECT_EQ(window.engine->log, byFinger ? row.byFinger : row.byTrackpad);
    }
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

struct Request {
  double at;  ///< seconds
  bool byUser;
  const char* address;
  bool leaves;
};

TEST(NewWindowLimit, LetsTheUserOutAndHoldsFloodsBack) {
  const struct {
    const char* what;
    std::vector<Request> requests;
  } pages[] = {
      {"the first one leaves to any address, later ones with a pause and to ordinary addresses",
       {{0, false, "whatsapp://send", true},
        {9.9, false, "https://a.example", false},
        {10, false, "https://a.example", true},
        {19.9, false, "https://a.example", false},
        {20, false, "whatsapp://send", false},
        {20, false, "tel:1", true},
        {30, false, "mailto:a@a.example", true},
        {40, false, "HTTP://a.example", true}}},
      {"gestures open one each, and leave nothing for a script beside them",
       {{0, true, "sms:1", true},
        {0, false, "tel:1", false},
        {1, true, "sms:1", true},
        {1, false, "tel:1", false},
        {11, false, "whatsapp://send", true},
        {12, true, "whatsapp://send", true},
        {22, false, "sms:1", false}}},
  };
  for (const auto& page : pages) {
    webkit::NewWindowLimit limit;
    for (const Request& request : page.requests) {
      const webkit::NewWindowLimit::Clock::time_point now{
          std::chrono::duration_cast<webkit::NewWindowLimit::Clock::duration>(
              std::chrono::duration<double>(request.at))};
      EXPECT_EQ(limit.allows(foundation::URL::parse(request.address).value(), request.byUser, now),
                request.leaves)
          << page.what << ": " << request.at << ' ' << request.address;
    }
  }
}

}  // namespace
}  // namespace quorix
