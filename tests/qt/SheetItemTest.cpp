#include <gtest/gtest.h>

#include <QTest>

#include "tests/qt/FeeRow.h"
#include "tests/qt/QuickScreen.h"

namespace quorix::testing {
namespace {

using swiftui::Text;
using swiftui::View;

constexpr QRectF kPlace(20, 40, 300, 0);

struct Closing {
  const char* by;
  void (*perform)(QuickScreen& screen);
};

const Closing kWays[] = {
    {"the close element", [](QuickScreen& screen) { screen.click("Close 4 €"); }},
    {"a tap outside",
     [](QuickScreen& screen) {
       screen.clickAt({180, 150});
     }},
    {"Escape", [](QuickScreen& screen) { screen.key(Qt::Key_Escape); }},
    {"the Back key", [](QuickScreen& screen) { screen.key(Qt::Key_Back); }},
    {"a flick of the mouse",
     [](QuickScreen& screen) {
       screen.drag({180, 420}, {180, 500}, 60, false);
     }},
    {"a flick of a finger",
     [](QuickScreen& screen) {
       screen.drag({180, 420}, {180, 500}, 60, true);
     }},
    {"a slow pull beyond its middle",
     [](QuickScreen& screen) {
       screen.drag({180, 420}, {180, 590}, 900, false);
     }},
    {"the keyboard on the close element",
     [](QuickScreen& screen) {
       screen.key(Qt::Key_Tab);
       screen.key(Qt::Key_Return);
     }},
};

TEST(SheetItem, EveryWayClosesItAndGivesTheFocusBack) {
  for (const Closing& way : kWays) {
    QuickScreen screen;
    QQuickItem* field = screen.addFocusable();
    qt::ViewItem* row = screen.add(FeeRow("4 €"), kPlace);
    const QImage before = screen.grab();
    screen.key(Qt::Key_Tab);
    screen.key(Qt::Key_Space);
    ASSERT_TRUE(screen.shows("Fee 4 €")) << way.by;
    EXPECT_FALSE(row->hasActiveFocus()) << way.by;
    way.perform(screen);
    EXPECT_FALSE(screen.shows("Fee 4 €")) << way.by;
    EXPECT_TRUE(row->hasActiveFocus()) << way.by;
    field->forceActiveFocus();
    screen.settle();
    EXPECT_EQ(screen.grab(), before) << way.by;
    screen.key(Qt::Key_Tab);
    screen.key(Qt::Key_Return);
    EXPECT_TRUE(screen.shows("Fee 4 €")) << way.by << ", and again";
  }
}

TEST(SheetItem, HoldsTheFocusInside) {
  QuickScreen screen;
  screen.addFocusable();
  screen.add(FeeRow("4 €"), kPlace);
  screen.click("Row 4 €");
  QQuickItem* sheet = screen.window().activeFocusItem();
  for (int i = 0; i < 5; ++i) {
    screen.key(i < 3 ? Qt::Key_Tab : Qt::Key_Backtab);
    EXPECT_EQ(screen.window().activeFocusItem(), sheet);
    EXPECT_EQ(screen.find("Close 4 €")->state().focused, i % 2 == 0);
  }
}

/// Takes every event that reaches it.
struct Greedy : QQuickItem {
  explicit Greedy(QQuickItem* parent) : QQuickItem(parent) {
    setSize(parent->size());
    setAcceptedMouseButtons(Qt::AllButtons);
    setAcceptHoverEvents(true);
    setAcceptTouchEvents(true);
  }
  int events = 0;

 protected:
  bool event(QEvent* event) override {
    switch (event->type()) {
      case QEvent::MouseButtonPress:
      case QEvent::Wheel:
      case QEvent::HoverMove:
      case QEvent::TouchBegin:
        ++events;
        event->accept();
        return true;
      default:
        return QQuickItem::event(event);
    }
  }
};

TEST(SheetItem, KeepsInputFromWhatLiesBelow) {
  QuickScreen screen;
  auto* below = new Greedy(screen.window().contentItem());
  screen.add(FeeRow("4 €"), kPlace);
  screen.click("Row 4 €");
  below->events = 0;
  const QPoint onPanel(180, 580);
  QTest::mouseMove(&screen.window(), onPanel);
  QTest::mousePress(&screen.window(), Qt::RightButton, {}, onPanel);
  QTest::mouseRelease(&screen.window(), Qt::RightButton, {}, onPanel);
  QWheelEvent wheel(onPanel, onPanel, {0, 20}, {0, 120}, Qt::NoButton, {}, Qt::NoScrollPhase,
                    false);
  QCoreApplication::sendEvent(&screen.window(), &wheel);
  screen.drag(onPanel, onPanel, 20, true);
  EXPECT_EQ(below->events, 0);
  EXPECT_TRUE(screen.shows("Fee 4 €"));
}

TEST(SheetItem, RowsOfOneWindowHaveTheirOwn) {
  QuickScreen screen;
  screen.add(FeeRow("4 €"), kPlace);
  screen.add(FeeRow("9 €"), kPlace.translated(0, 100));
  for (const QString fee : {"9 €", "4 €"}) {
    screen.click("Row " + fee);
    EXPECT_EQ(screen.shows("Fee 4 €"), fee == "4 €");
    EXPECT_EQ(screen.shows("Fee 9 €"), fee == "9 €");
    screen.key(Qt::Key_Escape);
  }
}

TEST(SheetItem, GoesWithItsRow) {
  QuickScreen screen;
  QQuickItem* field = screen.addFocusable();
  qt::ViewItem* row = screen.add(FeeRow("4 €"), kPlace);
  screen.click("Row 4 €");
  delete row;
  EXPECT_FALSE(screen.shows("Fee 4 €"));
  screen.settle();
  screen.key(Qt::Key_Tab);
  EXPECT_TRUE(field->hasActiveFocus());
}

/// Its sheet asks the host to take the row away.
struct Leaving {
  static constexpr std::string_view typeName = "Leaving";
  std::function<void()> leave;
  swiftui::State<bool> shown{false};
  auto states() const { return std::tie(shown); }
  View body() const {
    return View(Text::verbatim("open"))
        .onTapGesture([binding = shown.binding()] { binding.toggle(); })
        .sheet(shown.binding(), View(Text::verbatim("leave")).onTapGesture(leave));
  }
};

TEST(SheetItem, MayEndItsRowFromInside) {
  QuickScreen screen;
  qt::ViewItem* row = nullptr;
  row = screen.add(Leaving{[&] { delete row; }}, kPlace);
  screen.click("open");
  screen.click("leave");
  EXPECT_FALSE(screen.shows("leave"));
}

TEST(SheetItem, GoesWithItsWindowAndToAnotherOne) {
  QuickScreen first;
  QuickScreen second;
  qt::ViewItem* row = first.add(FeeRow("4 €"), kPlace);
  first.click("Row 4 €");
  row->setParentItem(second.window().contentItem());
  row->setParent(second.window().contentItem());
  second.settle();
  EXPECT_FALSE(first.shows("Fee 4 €"));
  EXPECT_TRUE(second.shows("Fee 4 €"));
  second.closeWindow();
}

TEST(SheetItem, RisesOverSeveralFramesAndThenRests) {
  QuickScreen screen;
  qt::ViewItem* row = screen.add(FeeRow("4 €"), kPlace);
  row->setMotion(true);
  std::vector<int> tops;
  QObject::connect(&screen.window(), &QQuickWindow::frameSwapped, row, [&] {
    if (screen.shows("Fee 4 €")) tops.push_back(screen.centreOf("Fee 4 €").y());
  });
  screen.click("Row 4 €");
  EXPECT_GT(tops.size(), 5u);
  EXPECT_TRUE(std::is_sorted(tops.rbegin(), tops.rend()));
  const std::size_t frames = tops.size();
  QTest::qWait(100);
  EXPECT_EQ(tops.size(), frames);
  screen.key(Qt::Key_Escape);
  EXPECT_FALSE(screen.shows("Fee 4 €"));
}

}  // namespace
}  // namespace quorix::testing
