#include "qt/widgets/ViewWidget.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QTest>
#include <QVBoxLayout>
#include <algorithm>
#include <cstdlib>

#include "QuorixWidgets/localization/Font.h"
#include "QuorixWidgets/localization/QuorixFont.h"
#include "qt/Picture.h"
#include "tests/qt/FeeRow.h"
#include "tests/qt/WidgetScreen.h"

namespace quorix::testing {
namespace {

using graphics::Appearance;
using layout::LayoutDirection;
using swiftui::Text;
using swiftui::View;

constexpr QRectF kPlace(20, 40, 300, 0);
constexpr const char* kSentence = "A sentence that needs two lines or more when the room is narrow";

View paragraph() { return Text::verbatim(kSentence); }

struct CountingWidget : qt::ViewWidget {
  using ViewWidget::ViewWidget;
  int paints = 0;

 protected:
  void paintEvent(QPaintEvent* event) override {
    ++paints;
    ViewWidget::paintEvent(event);
  }
};

QImage picture(const View& view, const QWidget& like, swiftui::Environment environment,
               graphics::RGBA background = {0, 0, 0, 0}) {
  environment.scale = like.devicePixelRatioF();
  return qt::picture(view,
                     {double(like.width()), double(like.height()), environment, false, background});
}

/// The widget alone, without what is behind it.
QImage grabbed(QWidget& widget) {
  const double scale = widget.devicePixelRatioF();
  QImage image((QSizeF(widget.size()) * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
  image.setDevicePixelRatio(scale);
  image.fill(Qt::transparent);
  widget.render(&image, {}, {}, QWidget::DrawChildren);
  return image;
}

TEST(ViewWidget, AsksForTheRoomThatALabelWithWordWrapWould) {
  qt::ViewWidget widget(paragraph());
  const QSize ideal = widget.sizeHint();
  EXPECT_GT(ideal.width(), 200);
  EXPECT_EQ(widget.heightForWidth(ideal.width()), ideal.height());
  EXPECT_GE(widget.heightForWidth(150), 2 * ideal.height());
  EXPECT_LT(widget.minimumSizeHint().width(), 150);
  EXPECT_EQ(widget.minimumSizeHint().height(), ideal.height());
}

TEST(ViewWidget, StandsInLayoutsAndTellsThemOfNewSizesOnly) {
  WidgetScreen screen;
  auto* column = new QVBoxLayout(&screen.host());
  auto model = FeeRow("4 €");
  auto* first = new qt::ViewWidget(paragraph());
  auto* second = new qt::ViewWidget(model);
  auto* last = new QLabel("below");
  for (QWidget* row :
       {static_cast<QWidget*>(first), static_cast<QWidget*>(second), static_cast<QWidget*>(last)}) {
    column->addWidget(row);
  }
  column->addStretch(1);
  screen.host().resize(180, 600);
  screen.settle();
  EXPECT_EQ(first->height(), first->heightForWidth(first->width()));
  EXPECT_GT(first->height(), 2 * second->height());
  struct Requests : QObject {
    int count = 0;
    bool eventFilter(QObject*, QEvent* event) override {
      count += event->type() == QEvent::LayoutRequest;
      return false;
    }
  } requests;
  screen.host().installEventFilter(&requests);
  model.model->fee = "5 €";
  screen.settle();
  EXPECT_EQ(requests.count, 0);
  first->setView(Text::verbatim("Short"));
  screen.settle();
  EXPECT_EQ(requests.count, 1);
  EXPECT_EQ(first->height(), first->heightForWidth(first->width()));
  EXPECT_LT(last->y(), 100);
}

TEST(ViewWidget, PaintsOncePerChangeAndRestsOtherwise) {
  WidgetScreen screen;
  auto model = FeeRow("4 €");
  auto* widget = new CountingWidget(model, &screen.host());
  widget->setGeometry(20, 40, 300, 30);
  widget->show();
  screen.settle();
  EXPECT_EQ(widget->paints, 1);
  QTest::mouseMove(&screen.window(), {30, 50});
  QTest::mouseMove(&screen.window(), {30, 200});
  QTest::qWait(100);
  EXPECT_EQ(widget->paints, 1);
  model.model->fee = "5 €";
  screen.settle();
  EXPECT_EQ(widget->paints, 2);
  widget->hide();
  model.model->fee = "6 €";
  screen.settle();
  EXPECT_EQ(widget->paints, 2);
  widget->show();
  screen.settle();
  EXPECT_EQ(widget->paints, 3);
  EXPECT_TRUE(screen.shows("Row 6 €"));
}

/// CMake runs this at other scales, too.
TEST(ViewWidgetScale, LooksOnItsPageAsThePictureAtThatScale) {
  WidgetScreen screen;
  screen.host().setPalette(Qt::white);
  // A light face, whose letters Qt draws otherwise on a page than on nothing.
  const View row =
      View(Text::verbatim("Return fee")).font(Font::Quorix::fixed(QuorixFont::regular(), 14));
  // An odd place falls between two device pixels at one and a half.
  const QPoint corner(21, 41);
  qt::ViewWidget* widget = screen.add(row, QRectF(corner, QSizeF(300, 30)));
  const double scale = widget->devicePixelRatioF();
  const QImage wanted = picture(row, *widget, {}, graphics::RGBA{255, 255, 255, 255});
  const QRect place((QPointF(corner) * scale).toPoint(), wanted.size());
  const QImage shown = screen.grab().copy(place);
  int furthest = 0;
  for (int y = 0; y < wanted.height(); ++y) {
    for (int x = 0; x < wanted.width(); ++x) {
      furthest = std::max(furthest, std::abs(qRed(shown.pixel(x, y)) - qRed(wanted.pixel(x, y))));
    }
  }
  EXPECT_LE(furthest, 2);
}

TEST(ViewWidget, FollowsPaletteAndDirectionUnlessToldOtherwise) {
  WidgetScreen screen;
  const FeeRow row("4 €");
  qt::ViewWidget* widget = screen.add(row, kPlace);
  const auto expect = [&](Appearance appearance, LayoutDirection direction) {
    screen.settle();
    swiftui::Environment environment;
    environment.appearance = appearance;
    environment.direction = direction;
    EXPECT_EQ(grabbed(*widget), picture(row, *widget, environment));
  };
  expect(Appearance::light, LayoutDirection::leftToRight);
  QPalette dark;
  dark.setColor(QPalette::Window, Qt::black);
  dark.setColor(QPalette::WindowText, Qt::white);
  screen.host().setPalette(dark);
  expect(Appearance::dark, LayoutDirection::leftToRight);
  screen.host().setLayoutDirection(Qt::RightToLeft);
  expect(Appearance::dark, LayoutDirection::rightToLeft);
  widget->setAppearance(Appearance::light);
  widget->setLayoutDirection(LayoutDirection::leftToRight);
  expect(Appearance::light, LayoutDirection::leftToRight);
}

TEST(ViewWidget, PointsAtWhatActsAndLetsTheRestThrough) {
  WidgetScreen screen;
  const auto eventsBelow = screen.listenBelow();
  qt::ViewWidget* widget =
      screen.add(swiftui::VStack(layout::HorizontalAlignment::leading, 4,
                                 {View(Text::verbatim("Press")).onTapGesture([] {}),
                                  Text::verbatim("A line that is wider than what acts")}),
                 kPlace);
  widget->setParent(screen.host().findChild<QWidget*>());
  widget->show();
  screen.settle();
  const QPoint inside = screen.centreOf("Press");
  const QPoint outside(inside.x(), widget->geometry().bottom() - 5);
  QTest::mouseMove(&screen.window(), inside);
  EXPECT_EQ(widget->cursor().shape(), Qt::PointingHandCursor);
  QTest::mouseMove(&screen.window(), outside);
  EXPECT_EQ(widget->cursor().shape(), Qt::ArrowCursor);
  const int before = eventsBelow();
  screen.clickAt(inside);
  EXPECT_EQ(eventsBelow(), before);
  screen.clickAt(outside);
  EXPECT_EQ(eventsBelow(), before + 2);  // the press, and the release that belongs to it
}

/// What a view does on screen and off it.
struct Watched {
  static constexpr std::string_view typeName = "Watched";
  std::shared_ptr<FeeModel> model = std::make_shared<FeeModel>("4 €");
  std::shared_ptr<int> bodies = std::make_shared<int>(0);
  auto observed() const { return std::tie(model); }
  View body() const { return ++*bodies, Text::verbatim(std::string(model->fee)); }
};

TEST(ViewWidget, ObservesOnlyWhileItsWindowShowsIt) {
  WidgetScreen screen;
  const Watched view;
  qt::ViewWidget* widget = screen.add(view, kPlace);
  const auto hears = [&] {
    screen.settle();
    const int before = *view.bodies;
    view.model->fee = std::to_string(before);
    screen.settle();
    return *view.bodies > before;
  };
  EXPECT_TRUE(hears());
  widget->hide();
  EXPECT_FALSE(hears());
  widget->show();
  EXPECT_TRUE(hears());
  screen.host().showMinimized();
  EXPECT_FALSE(hears());
  screen.host().showNormal();
  EXPECT_TRUE(hears());
}

TEST(SheetWidget, StaysOverTheWholeWindowAndHoldsTheFocus) {
  WidgetScreen screen;
  screen.add(FeeRow("4 €"), kPlace);
  screen.click("Row 4 €");
  screen.host().resize(500, 700);
  QWidget* late = screen.addFocusable();
  screen.settle();
  EXPECT_FALSE(late->hasFocus());
  auto* sheet = qobject_cast<QWidget*>(QGuiApplication::focusObject());
  ASSERT_TRUE(sheet);
  EXPECT_EQ(sheet->geometry(), screen.host().rect());
  EXPECT_EQ(screen.host().childAt(5, 5), sheet);
  screen.key(Qt::Key_Escape);
  EXPECT_EQ(screen.host().childAt(5, 5), late);
}

TEST(SheetWidget, GoesWithItsWindowInMidMotion) {
  auto screen = std::make_unique<WidgetScreen>();
  screen->add(FeeRow("4 €"), kPlace)->setMotion(true);
  QTest::mouseClick(&screen->window(), Qt::LeftButton, {}, screen->centreOf("Row 4 €"));
  QTest::qWait(50);
  screen->closeWindow();
  QTest::qWait(50);
  EXPECT_FALSE(qobject_cast<QWidget*>(QGuiApplication::focusObject()));
}

}  // namespace
}  // namespace quorix::testing
