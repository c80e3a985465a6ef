#include <QDialog>
#include <QMenu>
#include <QWidgetAction>

#include "qt/HostedWindow.h"
#include "tests/qt/Screens.h"

namespace quorix::testing {
namespace {

/// A page with a pop-up, and a row at the pop-up's top.
struct PopupPage {
  explicit PopupPage(const char* type) {
    page = screen.addQml(QByteArray(R"(
        import QtQuick.Controls.Basic
        Item { width: 360; height: 600; property bool open: popup.opened
        )") + type + R"(
        id: popup; objectName: "popup"; focus: true
        Row { width: 300; height: implicitHeight } } })");
    popup = page->findChild<QObject*>("popup");
    row = page->findChild<qt::ViewItem*>();
    row->setView(FeeRow("4 €"));
    row->setMotion(false);
    open();
  }
  void open() {
    QMetaObject::invokeMethod(popup, "open");
    screen.settle();
  }
  bool isOpen() const { return page->property("open").toBool(); }
  bool sheet() { return screen.shows("Fee 4 €"); }

  QuickScreen screen;
  QQuickItem* page = nullptr;
  QObject* popup = nullptr;
  qt::ViewItem* row = nullptr;
};

const char* kPopups[] = {
    "Popup { x: 20; y: 200;",
    "Popup { x: 20; y: 200; modal: true;",
    "Popup { x: 20; y: 200; dim: true;",
    "Popup { x: 20; y: 200; z: 7; modal: true; "
    "closePolicy: Popup.CloseOnReleaseOutside | Popup.CloseOnEscape;",
    "Popup { x: 20; y: 200; closePolicy: Popup.CloseOnReleaseOutsideParent | Popup.CloseOnEscape;",
    "Popup { x: 20; y: 200; closePolicy: Popup.CloseOnReleaseOutside | Popup.CloseOnEscape;",
    "Drawer { width: 320; height: 600; topPadding: 100;",
    "Drawer { width: 320; height: 600; topPadding: 100; modal: false;",
    "Dialog { width: 340; modal: true; title: 'Order';",
    "Dialog { width: 340; title: 'Order';",
    "Menu { width: 320;",
};

/// Ways to close the sheet and nothing else.
const Way kWays[] = {
    {"the cross", clicking("Close 4 €")},
    {"a click beside", dragging({340, 380}, {340, 380}, 0, false)},
    {"a tap beside", dragging({340, 380}, {340, 380}, 20, true)},
    {"Escape", pressing({Qt::Key_Escape})},
    {"the Back key", pressing({Qt::Key_Back})},
    {"a pull", dragging({180, 420}, {180, 590}, 60, true)},
};

TEST(Popup, TheSheetOfARowInItOpensAboveItAndLeavesItOpen) {
  for (const char* type : kPopups) {
    PopupPage page(type);
    ASSERT_TRUE(page.isOpen()) << type;
    for (const auto& way : kWays) {
      SCOPED_TRACE(std::string(type) + way.by);
      ASSERT_TRUE(page.screen.shows("Row 4 €"));
      page.screen.click("Row 4 €");
      ASSERT_TRUE(page.sheet());
      const EventCount wheels(*QGuiApplication::focusObject(), {QEvent::Wheel});
      page.screen.wheel({180, 580}, {0, 20}, {0, 120});
      EXPECT_EQ(wheels.count, 1) << "a page in the sheet may scroll";
      EXPECT_FALSE(page.row->hasActiveFocus());
      way.perform(page.screen);
      EXPECT_FALSE(page.sheet());
      EXPECT_TRUE(page.isOpen());
      EXPECT_TRUE(page.row->hasActiveFocus());
    }
    page.screen.key(Qt::Key_Escape);
    EXPECT_FALSE(page.isOpen()) << type << ": now Escape is for the pop-up";
  }
}

TEST(Popup, APopupOpenedOverASheetOfThePageStandsAboveIt) {
  PopupPage page(kPopups[1]);
  page.screen.key(Qt::Key_Escape);
  page.screen.add(FeeRow("9 €"), {20, 40, 300, 0});
  page.screen.click("Row 9 €");
  page.open();
  page.screen.click("Row 4 €");
  EXPECT_TRUE(page.sheet()) << "above the pop-up, which is above the other sheet";
  page.screen.key(Qt::Key_Escape);
  page.screen.key(Qt::Key_Escape);
  EXPECT_FALSE(page.isOpen());
  EXPECT_TRUE(page.screen.shows("Fee 9 €"));
}

TEST(Popup, InAWindowOfItsOwnTheSheetFillsThatWindow) {
  WidgetScreen screen;
  QDialog dialog(&screen.host());
  dialog.setModal(true);
  QWidget flyout(&screen.host(), Qt::Popup);
  QMenu menu(&screen.host());
  auto* inMenu = new QWidgetAction(&menu);
  for (QWidget* window : std::initializer_list<QWidget*>{&dialog, &flyout, &menu}) {
    SCOPED_TRACE(window->metaObject()->className());
    auto* row = new qt::ViewWidget(FeeRow("4 €"), window);
    row->setMotion(false);
    window->setMinimumSize(300, 400);
    row->setGeometry(10, 10, 280, 30);
    inMenu->setDefaultWidget(window == &menu ? row : nullptr);
    if (window == &menu) menu.addAction(inMenu);
    window == &menu ? menu.popup({30, 30}) : window->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(window));
    const QPoint onRow = row->mapTo(window, row->rect().center());
    const auto isOpen = [&] { return qt::HostedWindow::topmostOf(window) != nullptr; };
    for (const bool byKey : {true, false}) {
      QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, onRow);
      screen.settle();
      ASSERT_TRUE(isOpen());
      if (byKey) QTest::keyClick(window->windowHandle(), Qt::Key_Escape);
      if (!byKey) QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, {150, 100});
      screen.settle();
      EXPECT_FALSE(isOpen()) << byKey;
      EXPECT_TRUE(window->isVisible()) << byKey;
      EXPECT_EQ(window->focusWidget(), row) << byKey;
    }
    QTest::keyClick(window->windowHandle(), Qt::Key_Escape);
    screen.settle();
    EXPECT_FALSE(window->isVisible()) << "now Escape is for the window";
    window->hide();
  }
}

}  // namespace
}  // namespace quorix::testing
