#include "tests/web/PageTest.h"

namespace quorix::testing {
namespace {

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
