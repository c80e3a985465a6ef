#include "tests/qt/Pixels.h"
#include "tests/qt/Screens.h"

namespace quorix::testing {
namespace {

using swiftui::Text;

template <class Screen>
struct TallView : ::testing::Test {
  Screen screen;

  /// Whether the window shows anything.
  bool showsInk() {
    screen.settle();
    const QImage grabbed = screen.grab();
    QImage bare(grabbed.size(), grabbed.format());
    bare.fill(grabbed.pixelColor(grabbed.width() - 1, grabbed.height() - 1));
    return !differing(grabbed, bare, 64).isEmpty();
  }
};
TYPED_TEST_SUITE(TallView, Screens, ScreenName);

void moveTo(QQuickItem& item, int y) { item.setPosition({0, double(y)}); }
void moveTo(QWidget& widget, int y) { widget.move(0, y); }

/// A view of `height` points with texts at its start, in the middle and at its end.
swiftui::View tower(double height) {
  const swiftui::View gap = swiftui::Divider().frame(1, height / 2 - 100);
  return swiftui::VStack(
      layout::HorizontalAlignment::leading, 0,
      {Text::verbatim("Start"), gap, Text::verbatim("Middle"), gap, Text::verbatim("End")});
}

/// Taller than one picture or texture can be.
TYPED_TEST(TallView, ShowsWhatIsInSightOfIt) {
  constexpr int height = 60'000;
  const auto tall = this->screen.add(tower(height), QRectF(0, 0, 100, height));
  const std::pair<int, bool> places[] = {
      {0, true},
      {-300, false},
      {300 - height / 2, true},
      {-height / 4, false},
      {600 - height, true},
      {0, true},
      {-300, false},
  };
  for (const auto& [top, ink] : places) {
    moveTo(*tall, top);
    EXPECT_EQ(this->showsInk(), ink) << top;
  }
}

}  // namespace
}  // namespace quorix::testing
