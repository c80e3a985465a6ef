#include <map>
#include <sstream>

#include "platform/webkit/PageRules.h"
#include "tests/core/OpenedAddresses.h"
#include "tests/core/TestWindow.h"
#include "tests/core/Vectors.h"
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

class PageWindow final : public testing::TestWindow {
 public:
  PageWindow() : TestWindow(testing::PageRow{[this] { return content; }}) {
    content->settings.allowsBackForwardNavigationGestures = true;
    content->onProcessEnded = [this] { ++ends; };
    content->onLoadFailed = [this] { ++failures; };
    content->load({foundation::URL::parse("https://modules.quorix.example/page").value()});
    MainQueue::install({}, [this](auto, MainQueue::Work work) { timers.push_back(work); });
  }
  ~PageWindow() override { MainQueue::install({}); }

  void open() {
    act("Open page");
    frame(0);  // pages open after the first frame
  }
  /// Lets all time limits expire.
  void wait() {
    for (const auto& work : std::exchange(timers, {})) work();
    settle();
  }

  std::shared_ptr<webkit::WebContent> content = std::make_shared<webkit::WebContent>();
  std::vector<MainQueue::Work> timers;
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
  const std::map<std::string, Key> keys = {{"pageBack", Key::pageBack},
                                           {"pageForward", Key::pageForward},
                                           {"back", Key::back},
                                           {"escape", Key::escape}};
  forEachRow("web/keys", [&](simdjson::dom::element row) {
    PageWindow window;
    window.content->settings.allowsContentJavaScript = row["hasScripts"];
    window.open();
    ASSERT_TRUE(window.engine);
    window.engine->hasHistory = row["hasHistory"];
    window.key(keys.at(::text(row, "key")));
    window.engine->client.answered("alive");
    EXPECT_EQ(window.engine->log, ::text(row, "log"));
    window.settle();
    EXPECT_EQ(!window.sheets().empty(), bool(row["stays"]));
  });
}

TEST(SessionPage, SwipesLeadBackAndForward) {
  forEachRow("web/swipes", [](simdjson::dom::element row) {
    const bool hasHistory = row["hasHistory"], allowed = row["allowed"];
    for (const bool byFinger : {true, false}) {
      PageWindow window;
      window.content->settings.allowsBackForwardNavigationGestures = allowed;
      hosting::Settings settings{{}, false};
      if (row["mirrored"]) settings.environment.direction = layout::LayoutDirection::rightToLeft;
      window.setSettings(settings);
      window.open();
      window.engine->hasHistory = hasHistory;
      auto& client = window.engine->client;
      if (byFinger) {
        client.touched({Phase::pressed, {5, 100}, 1, 320});
        EXPECT_EQ(client.touched({Phase::moved, {90, 100}, 1, 320}), hasHistory && allowed);
        client.touched({Phase::released, {90, 100}, 1, 320});
      } else {
        client.scrolled({true, true, 100, 0, 1.7e12});
        client.answered(::text(row, "answer"));
      }
      EXPECT_EQ(window.engine->log, ::text(row, byFinger ? "byFinger" : "byTrackpad"));
    }
  });
}

TEST(SessionPage, LeavesTheAppOnceForEachGesture) {
  // The steps are the user's, or addresses that the page or a frame wants.
  forEachRow("web/gestures", [](simdjson::dom::element row) {
    PageWindow window;
    std::vector<std::string> left;
    window.content->onNewWindow = [&](const auto& url) { left.push_back(url->absoluteString()); };
    window.open();
    window.engine->hasHistory = true;
    auto& page = window.engine->client;
    for (const std::string& step : texts(row["steps"])) {
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
    EXPECT_EQ(left, texts(row["leave"]));
  });
}

TEST(SessionPage, HasLimitedTimeAndFailsWithAnErrorOfTheNetwork) {
  forEachRow("web/limits", [](simdjson::dom::element row) {
    PageWindow window;
    window.open();
    auto& page = window.engine->client;
    std::istringstream events(::text(row, "events"));
    for (std::string event; events >> event;) {
      int value = 0;
      if (event == "closing") page.closingKeyGiven();
      if (event == "answers") page.answered("alive");
      if (event == "hangs") page.answered("");
      if (event == "loading" && events >> value) page.loading(value);
      if (event == "ended" && events >> value) page.loadEnded(value);
    }
    window.wait();
    EXPECT_EQ(!window.sheets().empty(), bool(row["stays"]));
    if (row["stays"]) {
      EXPECT_EQ(window.engine->log, ::text(row, "log"));
    }
    EXPECT_EQ(window.failures, std::int64_t(row["failures"]));
  });
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

TEST(UserGesture, CountsOnceAndForASecond) {
  const webkit::UserGesture::Clock::time_point then{};
  webkit::UserGesture gesture;
  EXPECT_FALSE(gesture.take(then));
  for (const auto& [passed, counts] : {std::pair{999, true}, {1000, false}}) {
    gesture.happened(then);
    EXPECT_EQ(gesture.take(then + std::chrono::milliseconds(passed)), counts) << passed;
    EXPECT_FALSE(gesture.take(then)) << passed;
  }
}

TEST(NewWindowLimit, LetsTheUserOutAndHoldsFloodsBack) {
  forEachRow("web/new_windows", [](simdjson::dom::element page) {
    using Clock = webkit::NewWindowLimit::Clock;
    webkit::NewWindowLimit limit;
    for (const simdjson::dom::element request : page["requests"]) {
      const std::chrono::duration<double> at{double(request["seconds"])};
      const auto url = foundation::URL::parse(::text(request, "address")).value();
      EXPECT_EQ(limit.allows(url, request["byUser"],
                             Clock::time_point(std::chrono::duration_cast<Clock::duration>(at))),
                bool(request["leaves"]))
          << at.count() << ' ' << url.absoluteString();
    }
  });
}

}  // namespace
}  // namespace quorix
