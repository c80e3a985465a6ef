#include "qt/quick/ViewItem.h"

#include <QSignalSpy>
#include <algorithm>

#include "tests/qt/Screens.h"

namespace quorix::testing {
namespace {

/// Counts an item's requests to the scene graph.
struct CountingItem : qt::ViewItem {
  using ViewItem::ViewItem;
  int polishes = 0;
  int paints = 0;
  bool hasPicture = false;

 protected:
  void updatePolish() override {
    ++polishes;
    ViewItem::updatePolish();
  }
  QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData* data) override {
    ++paints;
    QSGNode* node = ViewItem::updatePaintNode(old, data);
    hasPicture = node != nullptr;
    return node;
  }
};

TEST(ViewItem, TakesTheRoomOfWhatItShowsInAnyLayout) {
  // The item after the row, and its place when the row is empty.
  const QByteArray after = "Item { objectName: 'after'; width: 9; implicitHeight: 9; ";
  const std::pair<QByteArray, QPointF> cases[] = {
      {"ColumnLayout { spacing: 3; width: 300; height: 500; Row { Layout.fillWidth: true; "
       "Layout.fillHeight: true } " +
           after + "Layout.fillHeight: true } }",
       {0, 3}},
      {"ColumnLayout { spacing: 3; Row { Layout.maximumHeight: 40; Layout.preferredHeight: 30 } " +
           after + "} }",
       {0, 3}},
      {"RowLayout { spacing: 3; width: 300; Row { Layout.fillWidth: true } " + after +
           "Layout.fillWidth: true } }",
       {3, 0}},
      {"GridLayout { columns: 2; columnSpacing: 3; Row { } " + after + "} }", {3, 0}},
      {"Column { spacing: 5; Row { width: 100 } " + after + "} }", {0, 0}},
  };
  QuickScreen screen;
  for (const auto& [source, whenEmpty] : cases) {
    const std::unique_ptr<QQuickItem> layout(screen.addQml(source));
    auto* row = layout->findChild<qt::ViewItem*>();
    auto* item = layout->findChild<QQuickItem*>("after");
    screen.settle();
    EXPECT_EQ(item->position(), whenEmpty) << source.constData() << " at first";
    row->setView(paragraph());
    screen.settle();
    const QPointF filled = item->position();
    EXPECT_GT(filled.x() + filled.y(), 15) << source.constData();
    EXPECT_TRUE(item->x() >= row->width() || item->y() >= row->height());
    EXPECT_GT(row->implicitWidth(), 200);
    EXPECT_GE(row->height(), row->implicitHeight());
    EXPECT_EQ(row->implicitHeight() > 30, row->width() < row->implicitWidth()) << "wraps";
    row->setView(swiftui::View());
    screen.settle();
    EXPECT_EQ(item->position(), whenEmpty) << source.constData();
    row->setView(paragraph());
    screen.settle();
    EXPECT_EQ(item->position(), filled) << source.constData();
  }
}

TEST(ViewItem, PaintsOncePerChangeAndRestsOtherwise) {
  QuickScreen screen;
  auto model = FeeRow("4 €");
  auto* item = new CountingItem(model, screen.window().contentItem());
  item->setPosition({20, 40});
  item->setWidth(300);
  screen.settle();
  const int painted = item->paints;
  EXPECT_TRUE(item->hasPicture);
  const int polishes = item->polishes, frames = screen.frames();
  QTest::qWait(200);
  EXPECT_EQ(screen.frames(), frames);
  EXPECT_EQ(item->polishes, polishes);
  screen.window().update();  // a frame for another item
  screen.settle();
  EXPECT_EQ(item->paints, painted);
  model.model->fee = "5 €";
  screen.settle();
  EXPECT_EQ(item->paints, painted + 1);
  item->setVisible(false);
  screen.settle();
  EXPECT_FALSE(item->hasPicture);
  item->setVisible(true);
  screen.settle();
  EXPECT_TRUE(item->hasPicture);
}

TEST(ViewItem, HasAPictureOnlyInAndNearTheViewport) {
  QuickScreen screen;
  QQuickItem* flickable =
      screen.addQml("Flickable { width: 360; height: 300; clip: true; contentHeight: 4000 }");
  auto* content = flickable->property("contentItem").value<QQuickItem*>();
  std::vector<CountingItem*> rows;
  for (int i = 0; i < 100; ++i) {
    rows.push_back(new CountingItem(FeeRow(std::to_string(i)), content));
    rows.back()->setPosition({20, 40.0 * i});
    rows.back()->setWidth(300);
  }
  using Range = std::pair<std::ptrdiff_t, std::ptrdiff_t>;
  const auto pictured = [&]() -> Range {
    const auto hasPicture = [](const CountingItem* row) { return row->hasPicture; };
    const auto first = std::find_if(rows.begin(), rows.end(), hasPicture);
    const auto last = std::find_if(rows.rbegin(), rows.rend(), hasPicture);
    return {first - rows.begin(), rows.rend() - last - 1};
  };
  screen.settle();
  EXPECT_EQ(pictured(), Range(0, 11));
  flickable->setProperty("contentY", 2000);
  screen.settle();
  EXPECT_EQ(pictured(), Range(46, 61));
  const auto paints = [&] { return std::pair(rows[49]->paints, rows[58]->paints); };
  const auto [first, last] = paints();
  flickable->setProperty("contentY", 2010);
  screen.settle();
  EXPECT_EQ(paints(), std::pair(first, last)) << "a scroll moves pictures";
  QSignalSpy frame(&screen.window(), &QQuickWindow::frameSwapped);
  flickable->setProperty("contentY", 2010.5);
  EXPECT_TRUE(frame.wait());
  EXPECT_EQ(paints(), std::pair(first + 1, last + 1)) << "all on whole pixels in this frame";
}

}  // namespace
}  // namespace quorix::testing
