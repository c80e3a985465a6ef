#include "tests/web/EngineProcesses.h"
#include "tests/web/PageTest.h"

namespace quorix::testing {
namespace {

const QColor kControlColor(kControl.red, kControl.green, kControl.blue);

template <class Screen>
struct PageSheet : PageTest<Screen> {};
TYPED_TEST_SUITE(PageSheet, Screens, ScreenName);

TYPED_TEST(PageSheet, StandsBetweenWhatLiesBelowAndAbove) {
  this->openBlue("<div style='height:2000px' onclick=\"tell('clicked')\">x</div>");
  EXPECT_EQ(this->at(this->kAtControl), kControlColor);
  const QImage shown = this->screen.grab();
  EXPECT_EQ(shown.pixelColor(180, 9), shown.pixelColor(0, 10)) << "the corners are round";
  EXPECT_EQ(shown.pixelColor(359, 9), shown.pixelColor(359, 10));
  EXPECT_EQ(shown.pixelColor(180, 10), kGround);
  QTest::mouseClick(&this->screen.window(), Qt::LeftButton, {}, this->kInPage);
  EXPECT_TRUE(this->reported("clicked"));
  EXPECT_TRUE(this->isOpen()) << "the page lies over what would close it";
  this->screen.clickAt(this->kAtControl);
  EXPECT_FALSE(this->isOpen());
  EXPECT_TRUE(this->latest.expired());
}

TYPED_TEST(PageSheet, HasItsPageInTheFirstFrameAndTellsAssistiveTechnologyOfIt) {
  this->openBlue();
  this->screen.key(Qt::Key_Escape);
  ASSERT_FALSE(this->isOpen());
  const int frames = this->screen.frames();
  QTest::mouseClick(&this->screen.window(), Qt::LeftButton, {}, this->screen.centerOf("Open page"));
  ASSERT_TRUE(waitUntil([&] { return this->screen.frames() > frames; }));
  QAccessibleInterface* control = this->screen.find("Close page");
  ASSERT_TRUE(control);
  QAccessibleInterface* sheet = control->parent();
  ASSERT_EQ(sheet->childCount(), 2);
  QAccessibleInterface* view = sheet->child(1);
  EXPECT_EQ(sheet->indexOfChild(view), 1);
  EXPECT_EQ(view->parent(), sheet);
  EXPECT_TRUE(waitUntil([&] { return view->childCount() == 1; })) << "the engine's own tree";
}

TYPED_TEST(PageSheet, MovesAsOne) {
  this->opener->setMotion(true);
  this->openBlue();
  ASSERT_TRUE(this->shows(kControlColor, this->kAtControl));
  const QPoint down(0, 60);
  QTest::mousePress(&this->screen.window(), Qt::LeftButton, {}, this->kAtControl);
  for (int i = 1; i <= 6; ++i) {
    QTest::mouseMove(&this->screen.window(), this->kAtControl + down * i / 6, 10);
  }
  EXPECT_TRUE(this->shows(kControlColor, this->kAtControl + down));
  EXPECT_NE(this->at(QPoint(180, 10 + 12 + 30)), QColor(Qt::blue));
  EXPECT_EQ(this->at(QPoint(180, 10 + 12 + 62)), QColor(Qt::blue));
  QTest::mouseRelease(&this->screen.window(), Qt::LeftButton, {}, this->kAtControl);
  this->screen.settle();
  EXPECT_TRUE(this->isOpen());
}

TYPED_TEST(PageSheet, ScrollsThePageAndNotTheSheet) {
  this->openBlue("<div style='height:3000px'></div>", "onscroll = () => tell('scrolled')");
  EXPECT_TRUE(waitUntil([&] {
    this->screen.wheel(this->kInPage, {0, -60}, {0, -120});  // a busy engine drops some
    return reports().contains("scrolled");
  }));
  this->screen.drag(this->kInPage, this->kInPage + QPoint(0, 150), 60, false);
  this->screen.drag(this->kInPage, this->kInPage + QPoint(0, 150), 60, true);
  EXPECT_TRUE(this->isOpen());
}

TYPED_TEST(PageSheet, LeadsTheKeyboardIntoThePageAndOutAgain) {
  this->openBlue(
      "<input id=a onfocus=\"tell('a')\"><input id=b onfocus=\"tell('b')\" "
      "onkeydown=\"if (event.key == 'Escape') { event.preventDefault(); tell('used'); "
      "this.onkeydown = null }\">");
  QAccessibleInterface* control = this->screen.find("Close page");
  for (int round = 0; round < 2; ++round) {
    pages().forgetRequests();
    this->screen.key(Qt::Key_Tab);
    EXPECT_TRUE(waitUntil([&] { return control->state().focused; })) << round;
    this->screen.key(Qt::Key_Tab);
    EXPECT_TRUE(this->reported("a")) << round;
    this->screen.key(Qt::Key_Tab);
    EXPECT_TRUE(this->reported("b")) << round;
    EXPECT_FALSE(control->state().focused);
  }
  this->screen.key(Qt::Key_Tab);
  EXPECT_TRUE(waitUntil([&] { return control->state().focused; }));
  pages().forgetRequests();
  this->screen.key(Qt::Key_Backtab);
  EXPECT_TRUE(this->reported("b"));
  this->screen.key(Qt::Key_Escape);
  EXPECT_TRUE(this->reported("used"));
  EXPECT_TRUE(this->isOpen());
  this->screen.key(Qt::Key_Escape);
  EXPECT_TRUE(waitUntil([&] { return !this->isOpen(); }));
  EXPECT_TRUE(waitUntil([&] { return TypeParam::hasFocus(this->opener); }));
}

double residentMegabytes() {
  QFile status(QStringLiteral("/proc/self/statm"));
  if (!status.open(QIODevice::ReadOnly)) return 0;
  return status.readAll().split(' ').value(1).toDouble() * 4096 / 1e6;
}

TYPED_TEST(PageSheet, LeaksNoProcessAndNoMemory) {
  constexpr int kWarming = 4;
  std::size_t processes = 0;
  double memory = 0;
  for (int i = 0; i < kWarming + 10; ++i) {
    this->openBlue();
    EXPECT_GE(engineProcesses().size(), 1u);
    if (i % 2 == 0) this->screen.key(Qt::Key_Escape);
    if (i % 2 == 1) this->screen.clickAt(this->kAtControl);
    ASSERT_TRUE(waitUntil([&] { return this->latest.expired(); }));
    if (i + 1 != kWarming) continue;
    processes = engineProcesses().size();
    memory = residentMegabytes();
  }
  EXPECT_TRUE(waitUntil([&] { return engineProcesses().size() <= processes; }))
      << engineProcesses().size() << " after " << processes;
  EXPECT_LT(residentMegabytes() - memory, 20) << "for ten openings";
}

constexpr QPoint kWide{100, 130}, kOwn{100, 230}, kPlain{100, 400};

template <class Screen>
struct PageSwipe : PageTest<Screen> {
  /// Opens a blue page, and then the red page that it links to.
  void openRed() {
    const QByteArray link = "<a style='display:block;height:2000px' href='/next'>x</a>";
    const QByteArray content =
        "<div id=wide style='position:absolute;top:60px;left:0;width:360px;height:100px;overflow:"
        "auto'><div style='width:2000px'>x</div></div>"
        "<div id=own style='position:absolute;top:180px;left:0;width:360px;height:60px'></div>";
    const QByteArray script = R"(
      addEventListener('load', () => {
        wide.scrollLeft = 500;
        own.addEventListener('wheel', event => event.preventDefault(), {passive: false});
      });
      for (const type of ['touchmove', 'touchcancel']) addEventListener(type, () => tell(type)); )";
    pages().serve("/next", page("#ff0000", content, script));
    this->openBlue(link);
    QTest::mouseClick(&this->screen.window(), Qt::LeftButton, {}, kPlain);
    ASSERT_TRUE(this->isPainted(Qt::red));
  }

  /// Scrolls at `at` with two fingers on a trackpad, by ten times `step`.
  void scroll(QPoint at, QPoint step) {
    const auto send = [&](QPoint by, Qt::ScrollPhase phase) {
      this->screen.wheel(at, by, by, phase);
      QTest::qWait(20);
    };
    send({}, Qt::ScrollBegin);
    for (int i = 0; i < 10; ++i) send(step, Qt::ScrollUpdate);
    send({}, Qt::ScrollEnd);
    for (int i = 0; i < 3; ++i) send(3 * step, Qt::ScrollMomentum);
    send({}, Qt::ScrollEnd);
  }

  void touch(QPoint from, QPoint to) { this->screen.drag(from, to, 100, true); }

  bool stays(QColor color) {
    QTest::qWait(200);
    return pages().requests("/here").empty() && this->at(kPlain) == color;
  }
};
TYPED_TEST_SUITE(PageSwipe, Screens, ScreenName);

TYPED_TEST(PageSwipe, LeadsBackAndForwardAndLeavesThePageItsOwn) {
  this->openRed();
  this->scroll(kPlain, {2, -20});
  EXPECT_TRUE(this->stays(Qt::red)) << "a vertical scroll";
  this->scroll(kPlain, {-20, 0});
  EXPECT_TRUE(this->stays(Qt::red)) << "nothing lies ahead";
  this->scroll(kWide, {20, 0});
  EXPECT_TRUE(this->stays(Qt::red)) << "a table scrolls";
  this->scroll(kOwn, {20, 0});
  EXPECT_TRUE(this->stays(Qt::red)) << "a script scrolls";
  this->touch({100, 400}, {250, 400});
  this->touch({5, 300}, {12, 450});
  EXPECT_TRUE(this->reported("touchmove"));
  EXPECT_FALSE(reports().contains("touchcancel"));
  EXPECT_TRUE(this->stays(Qt::red)) << "a finger on the page";
  pages().forgetRequests("/report");
  this->touch({355, 400}, {240, 410});
  EXPECT_TRUE(this->reported("touchmove")) << "a finger from the side where nothing lies";
  EXPECT_FALSE(reports().contains("touchcancel"));
  this->touch({5, 400}, {45, 400});
  EXPECT_TRUE(this->reported("touchcancel"));
  EXPECT_TRUE(this->stays(Qt::red)) << "not far enough";

  this->scroll(kPlain, {20, 1});
  EXPECT_TRUE(this->isPainted(Qt::blue));
  EXPECT_TRUE(this->stays(Qt::blue)) << "once for each swipe";
  this->scroll(kPlain, {-20, 1});
  EXPECT_TRUE(this->isPainted(Qt::red));
  this->touch({5, 400}, {120, 410});
  EXPECT_TRUE(this->isPainted(Qt::blue));
  this->touch({355, 400}, {240, 410});
  EXPECT_TRUE(this->isPainted(Qt::red));
  EXPECT_TRUE(this->isOpen());
}

}  // namespace
}  // namespace quorix::testing
