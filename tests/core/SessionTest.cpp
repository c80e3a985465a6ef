#include "platform/hosting/SheetPanel.h"
#include "platform/uikit/UIApplication.h"
#include "platform/webkit/PageRules.h"
#include "tests/core/OpenedAddresses.h"
#include "tests/core/TestWindow.h"
#include "tests/qt/FeeRow.h"
#include "tests/web/PageRow.h"

namespace quorix {
namespace {

using hosting::Key;
using testing::TestWindow;
using Phase = hosting::PointerEvent::Phase;

TEST(Session, ASheetClosesByEachOfItsWays) {
  TestWindow window(testing::FeeRow("4 €"));
  constexpr layout::Point beside{160, 20};
  const auto drag = [&](double milliseconds) {
    window.front().handle({Phase::pressed, {160, 500}, 0, 3});
    window.front().handle({Phase::moved, {160, 540}, milliseconds, 3});
    window.front().handle({Phase::released, {160, 540}, milliseconds, 3});
  };
  const struct {
    const char* by;
    std::function<void()> perform;
    std::string reason = {};  ///< none: it stays open
  } rows[] = {
      {"a screen reader on it", [&] { window.front().activate(1); }, "button"},
      {"the Back key", [&] { window.key(Key::back), window.tap(beside); }, "key"},
      {"Enter on the first element", [&] { window.key(Key::next), window.key(Key::activate); },
       "button"},
      {"a swipe", [&] { drag(20); }, "swipe"},
      {"the host, after a tap that closes nothing",
       [&] { window.act("Terms"), window.view().replaceView(testing::FeeRow("4 €")); }, "host"},
      {"a slow one", [&] { drag(500); }},
      {"a second finger",
       [&] {
         window.front().handle({Phase::pressed, {160, 500}, 0, 3});
         window.front().handle({Phase::pressed, beside, 5, 4});
         window.front().handle({Phase::released, beside, 9, 4});
         window.front().pointerLost();
         window.front().handle({Phase::released, beside, 9, 3});
       }},
      {"another key", [&] { EXPECT_FALSE(window.key(Key::pageBack)); }},
      {"a screen reader on a text", [&] { window.front().activate(0); }},
  };
  for (const auto& way : rows) {
    window.told.clear();
    window.act("Row 4 €");
    ASSERT_TRUE(window.sheet()) << way.by;
    EXPECT_EQ(&window.front(), window.topmost());
    EXPECT_EQ(window.told, "activated opened ") << way.by;
    window.told.clear();
    const auto sheet = window.topmost()->weak();
    way.perform();
    window.settle();
    EXPECT_EQ(sheet.expired(), !way.reason.empty()) << way.by;
    EXPECT_EQ(window.sheet() == nullptr, !way.reason.empty()) << way.by;
    EXPECT_EQ(window.told, way.reason.empty() ? "" : "closed:" + way.reason + " ") << way.by;
    window.key(Key::escape);
    window.settle();
  }
}

TEST(Session, AWindowPresentsControllersOverItself) {
  TestWindow window(testing::FeeRow("4 €"));
  const auto scene = std::static_pointer_cast<uikit::UIWindowScene>(
      uikit::UIApplication::shared().connectedScenes().front());
  const auto root = scene->windows().front()->rootViewController();
  const auto page = [](const char* name) {
    auto made = std::make_shared<uikit::UIViewController>();
    made->view()->setAccessibilityLabel(name);
    return made;
  };
  const auto escape = [&] { window.key(Key::escape), window.settle(); };
  window.act("Row 4 €");  // whose settings the pages get
  escape();
  window.told.clear();
  const auto lower = page("lower");
  root->present(lower, true);
  lower->present(page("upper"), true);
  window.settle();
  EXPECT_EQ(window.sheets().size(), 2U);
  EXPECT_EQ(window.labels(), "upper");
  window.environment.appearance = graphics::Appearance::dark;
  window.setMotion(false);
  EXPECT_EQ(window.sheet()->scene().appearance, graphics::Appearance::dark);
  escape();
  EXPECT_EQ(lower->presentedViewController(), nullptr) << "the user closed it";
  root->dismiss(true);
  window.settle();
  root->present(lower, true);
  window.settle();
  root->dismiss(true);
  root->present(lower, true);  // at once, which leaves it up
  window.settle();
  escape();
  EXPECT_FALSE(window.sheet());
  EXPECT_EQ(window.told, "opened closed:host opened closed:key ");
}

/// An engine that answers when the test wants.
struct FakeEngine final : hosting::PageEngine {
  explicit FakeEngine(Client& page) : client(page) {}
  bool isShown() const override { return true; }
  void load(const foundation::URL&) override { log += "load "; }
  void stopLoad(std::chrono::milliseconds) override { log += "stop "; }
  void ask() override { log += "ask "; }
  void askForScroll(double) override { log += "ask "; }
  bool canGoBack() const override { return true; }
  bool canGoForward() const override { return true; }
  void goBack() override { log += "back "; }
  void goForward() override { log += "forward "; }

  Client& client;
  std::string log;
};

class PageWindow final : public testing::TestText, public hosting::ViewWindow {
 public:
  PageWindow()
      : ViewWindow(text, {{}, false}, testing::PageRow{[this] { return content; }}, {320, 640}) {
    content->onProcessEnded = [this] { ++ends; };
    content->load({foundation::URL::parse("https://modules.quorix.example/page").value()});
  }

  void settle() {
    while (frame(0) || foundation::MainQueue::drain() > 0) {
    }
    frame(0);  // pages open in the frame after the first
  }
  void open() {
    settle();
    view().activate(0);
    settle();
  }

  std::shared_ptr<webkit::WebContent> content = std::make_shared<webkit::WebContent>();
  FakeEngine* engine = nullptr;
  bool hasEngine = true;
  int ends = 0;

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
      {"out of the panel", {{-5, -30}, {370, 430}}, 12, 12, 12, true},
      {"beside a part that the device covers", {{6, 0}, {354, 400}}, 12, 12, 12, false},
      {"on a translucent ground", panel, 12, 12, 12, false, true, 2, 128},
      {"a radius of 31.5 pixels", panel, 32 / 2.625, 32 / 2.625, 12, true, true, 2.625},
      {"the same, not cut", panel, 32 / 2.625, 0, 0, false, false, 2.625},
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

TEST(SessionPage, SwipesFollowTheLayoutsDirectionAndItsSettings) {
  const struct {
    bool allowed, mirrored;
    const char* byFinger;
    const char* byTrackpad;
  } rows[] = {
      {true, false, "load back ", "load ask back "},
      {true, true, "load forward ", "load ask forward "},
      {false, false, "load ", "load "},
  };
  for (const auto& row : rows) {
    for (const bool byFinger : {true, false}) {
      PageWindow window;
      window.content->settings.allowsBackForwardNavigationGestures = row.allowed;
      hosting::Settings settings{{}, false};
      if (row.mirrored) settings.environment.direction = layout::LayoutDirection::rightToLeft;
      window.setSettings(settings);
      window.open();
      auto& client = window.engine->client;
      if (byFinger) {
        client.touched({Phase::pressed, {5, 100}, 1, 320});
        EXPECT_EQ(client.touched({Phase::moved, {90, 100}, 1, 320}), row.allowed);
        client.touched({Phase::released, {90, 100}, 1, 320});
      } else {
        client.scrolled({true, true, 100, 0, 0});
        client.scrollAnswered(false);
      }
      EXPECT_EQ(window.engine->log, byFinger ? row.byFinger : row.byTrackpad);
    }
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
        {20, false, "sms:1", false},
        {20, false, "tel:1", true},
        {30, false, "mailto:a@a.example", true},
        {40, false, "HTTP://a.example", true}}},
      {"what is refused does not lengthen the pause",
       {{0, false, "tel:1", true}, {9, false, "tel:1", false}, {10, false, "tel:1", true}}},
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
