#include "qt/widgets/ViewWidget.h"

#include <QVBoxLayout>

#include "tests/qt/Screens.h"

namespace quorix::testing {
namespace {

using swiftui::Text;
using swiftui::View;

TEST(ViewWidget, TellsLayoutsOfNewSizesOnly) {
  WidgetScreen screen;
  auto* column = new QVBoxLayout(&screen.host());
  auto model = FeeRow("4 €");
  auto* first = new qt::ViewWidget(paragraph());
  column->addWidget(first);
  column->addWidget(new qt::ViewWidget(model));
  screen.settle();
  const EventCount requests(screen.host(), {QEvent::LayoutRequest});
  model.model->fee = "5 €";
  screen.settle();
  EXPECT_EQ(requests.count, 0);
  first->setView(Text::verbatim("Short"));
  screen.settle();
  EXPECT_EQ(requests.count, 1);
}

TEST(ViewWidget, TakesTheRoomOfALabelWithWordWrapInAnyLayout) {
  WidgetScreen screen;
  for (QLayout* layout :
       std::initializer_list<QLayout*>{new QGridLayout, new QVBoxLayout, new QHBoxLayout}) {
    QWidget page(&screen.host());
    page.resize(180, 400);
    page.setLayout(layout);
    layout->setContentsMargins({});
    layout->setSpacing(3);
    auto* widget = new qt::ViewWidget;
    auto* after = new QWidget;
    after->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    layout->addWidget(widget);
    layout->addWidget(after);
    page.show();
    screen.settle();
    EXPECT_EQ(after->pos().manhattanLength(), 3);
    widget->setView(paragraph());
    screen.settle();
    const QRect filled = after->geometry();
    EXPECT_GT(filled.topLeft().manhattanLength(), 15);
    const QSize ideal = widget->sizeHint(), least = widget->minimumSizeHint();
    EXPECT_GT(ideal.width(), 200);
    EXPECT_EQ(widget->heightForWidth(ideal.width()), ideal.height());
    EXPECT_LT(least.width(), 150);
    EXPECT_EQ(least.height(), ideal.height());
    EXPECT_GE(widget->height(), widget->heightForWidth(widget->width()));
    EXPECT_GE(widget->height(), 2 * ideal.height());
    widget->setView(View());
    screen.settle();
    EXPECT_EQ(after->pos().manhattanLength(), 3);
    widget->setView(paragraph());
    screen.settle();
    EXPECT_EQ(after->geometry(), filled);
  }
}

TEST(ViewWidget, WorksOncePerChangeAndOnlyWhileItsWindowShowsIt) {
  WidgetScreen screen;
  const Watched view("4 €");
  auto* widget = new qt::ViewWidget(view, &screen.host());
  const EventCount paints(*widget, {QEvent::Paint});
  widget->setGeometry(20, 40, 300, 30);
  widget->show();
  screen.settle();
  EXPECT_EQ(paints.count, 1);
  QTest::mouseMove(&screen.window(), {30, 50});
  QTest::mouseMove(&screen.window(), {30, 200});
  QTest::qWait(100);
  EXPECT_EQ(paints.count, 1);
  using Work = std::pair<int, int>;  // evaluations and paintings
  const auto workForAChange = [&]() -> Work {
    screen.settle();
    const Work before(*view.bodies, paints.count);
    view.model->fee = std::to_string(before.first);
    screen.settle();
    return {*view.bodies - before.first, paints.count - before.second};
  };
  EXPECT_EQ(workForAChange(), Work(1, 1));
  widget->hide();
  EXPECT_EQ(workForAChange(), Work(0, 0));
  const std::string missed = view.model->fee;
  widget->show();
  screen.settle();
  EXPECT_TRUE(screen.shows(QString::fromStdString(missed)));
  EXPECT_EQ(workForAChange(), Work(1, 1));
  screen.host().showMinimized();
  EXPECT_EQ(workForAChange().first, 0);
  screen.host().showNormal();
  EXPECT_EQ(workForAChange(), Work(1, 1));
}

TEST(ViewWidget, FollowsPaletteAndDirectionUnlessToldOtherwise) {
  WidgetScreen screen;
  const FeeRow row("4 €");
  qt::ViewWidget* widget = screen.add(row, kPlace);
  const auto looks = [&] {  // the widget without its background
    screen.settle();
    QImage image(widget->size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    widget->render(&image, {}, {}, QWidget::DrawChildren);
    return image;
  };
  const QImage asItIs = looks();  // light, left to right
  QPalette palette;
  palette.setColor(QPalette::Window, Qt::black);
  palette.setColor(QPalette::WindowText, Qt::white);
  screen.host().setPalette(palette);
  const QImage dark = looks();
  EXPECT_NE(dark, asItIs);
  screen.host().setLayoutDirection(Qt::RightToLeft);
  EXPECT_NE(looks(), dark);
  widget->setLayoutDirection(layout::LayoutDirection::leftToRight);
  EXPECT_EQ(looks(), dark);
  widget->setAppearance(graphics::Appearance::light);
  EXPECT_EQ(looks(), asItIs);
}

TEST(ViewWidget, PointsAtWhatActsAndLetsTheRestThrough) {
  WidgetScreen screen;
  const EventCount below(screen.addBelow(), kPointer);
  qt::ViewWidget* widget =
      screen.add(swiftui::VStack(layout::HorizontalAlignment::leading, 4,
                                 {View(Text::verbatim("Press")).onTapGesture([] {}),
                                  Text::verbatim("A line that is wider than what acts")}),
                 kPlace);
  widget->setParent(screen.host().findChild<QWidget*>());
  widget->show();
  screen.settle();
  const QPoint inside = screen.centerOf("Press");
  const QPoint outside(inside.x(), widget->geometry().bottom() - 5);
  QTest::mouseMove(&screen.window(), inside);
  EXPECT_EQ(widget->cursor().shape(), Qt::PointingHandCursor);
  QTest::mouseMove(&screen.window(), outside);
  EXPECT_EQ(widget->cursor().shape(), Qt::ArrowCursor);
  const int before = below.count;
  screen.clickAt(inside);
  EXPECT_EQ(below.count, before);
  screen.clickAt(outside);
  EXPECT_EQ(below.count, before + 2);  // the press and its release
}

}  // namespace
}  // namespace quorix::testing
