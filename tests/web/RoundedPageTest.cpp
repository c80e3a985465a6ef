#include "tests/qt/Pixels.h"
#include "tests/web/PageTest.h"

namespace quorix::testing {
namespace {

constexpr int kRadius = 12;
const QPoint kInStrip(280, 18);

/// Rounded corners with the GPU renderer, at any scale.
class RoundedPage : public PageTest<QuickScreen> {
 protected:
  double scale() { return screen.window().devicePixelRatio(); }
  QColor inStrip() { return screen.grab().pixelColor(kInStrip * scale()); }
};

TEST_F(RoundedPage, ReachesTheTopBetweenSmoothCorners) {
  openBlue();
  const QImage shown = screen.grab();
  const int middle = shown.width() / 2;
  const int top = int(std::ceil(10 * scale()));
  const int radius = int(std::ceil(kRadius * scale()));
  EXPECT_EQ(shown.pixelColor(middle, top), QColor(Qt::blue));
  EXPECT_EQ(shown.pixel(0, top), shown.pixel(0, top - 2)) << "what is below the sheet";
  int mixed = 0;
  for (int y = top; y < top + radius; ++y) {
    for (int x = 0; x < radius; ++x) {
      const QRgb pixel = shown.pixel(x, y);
      EXPECT_EQ(qRed(pixel), qGreen(pixel)) << "the page's ground, at " << x << "," << y;
      EXPECT_EQ(pixel, shown.pixel(shown.width() - 1 - x, y)) << x << "," << y;
      mixed += qRed(pixel) > 0 && pixel != shown.pixel(0, top);
    }
  }
  EXPECT_GT(mixed, radius / 2);
}

TEST_F(RoundedPage, ShowsItsGroundUntilThePageHasPainted) {
  pages().serve("/never", {.comes = false});
  open(std::string(kModules) + "/never");
  EXPECT_EQ(inStrip(), kGround);
  screen.key(Qt::Key_Escape);
  QTest::mouseClick(&screen.window(), Qt::LeftButton, {}, screen.centerOf("Open page"));
  QColor first;
  ASSERT_TRUE(waitUntil([&] { return (first = inStrip()) != Qt::white; }));
  EXPECT_EQ(first, kGround) << "in the first frame";
}

TEST_F(RoundedPage, KeepsThePixelsOfThePage) {
  const QByteArray one = QByteArray::number(1 / scale()) + "px";
  const QByteArray two = QByteArray::number(2 / scale()) + "px";
  openBlue(
      "<div style='height:100vh;margin-left:50vw;background:repeating-linear-gradient(#fff 0 " +
      one + ",#000 " + one + " " + two + ")'></div>");
  const auto firstMixed = [&] {
    const QImage shown = screen.grab();
    const int x = int(kInStrip.x() * scale());
    int y = int(12 * scale());
    while (y + 1 < shown.height() && distance(shown.pixel(x, y), shown.pixel(x, y + 1)) == 255) ++y;
    return y + 1 < shown.height() ? y : 0;
  };
  EXPECT_TRUE(waitUntil([&] { return firstMixed() == 0; })) << firstMixed();
}

TEST_F(RoundedPage, IsAliveAndTakesNoInputBesideTheCorners) {
  openBlue(
      "<div style='height:9999px'>x</div>",
      "onpointermove = onpointerdown = event => { if (event.clientY < 12) tell('beside') };"
      "onclick = () => { document.documentElement.style.background = '#f00'; tell('clicked') }");
  QTest::mouseMove(&screen.window(), kInStrip, 50);
  QTest::mouseClick(&screen.window(), Qt::LeftButton, {}, kInPage);
  EXPECT_TRUE(reported("clicked"));
  EXPECT_TRUE(waitUntil([&] { return inStrip() == QColor(Qt::red); }));
  screen.drag(kInStrip, kInStrip + QPoint(0, 500), 300, false);
  EXPECT_FALSE(isOpen());
  EXPECT_FALSE(reports().contains("beside"));
}

}  // namespace
}  // namespace quorix::testing
