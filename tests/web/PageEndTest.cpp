#include <sys/types.h>

#include <QLoggingCategory>
#include <QPointer>
#include <QTcpServer>
#include <QTcpSocket>
#include <csignal>

#include "QuorixWidgets/info/InfoWidgetBuilder.h"
#include "tests/web/EngineProcesses.h"
#include "tests/web/LogListener.h"
#include "tests/web/PageTest.h"

namespace quorix::testing {
namespace {

template <class Screen>
struct PageEnd : PageTest<Screen> {
  /// Moves the keyboard focus into a page, which then hangs.
  void openHanging() {
    this->openBlue("<input onfocus=\"tell('in'); setTimeout(() => { while (true); }, 50)\">");
    pages().forgetRequests("/report");
    this->screen.key(Qt::Key_Tab);
    this->screen.key(Qt::Key_Tab);
    ASSERT_TRUE(this->reported("in"));
    QTest::qWait(100);
  }
};
TYPED_TEST_SUITE(PageEnd, Screens, ScreenName);

TYPED_TEST(PageEnd, AHangingPageIsClosedByEveryWayWithinASecond) {
  this->opener->setMotion(true);
  const QPoint outside(180, 4), down(0, 400);
  const Way ways[] = {
      {"Escape", pressing({Qt::Key_Escape})},
      {"Back", pressing({Qt::Key_Back})},
      {"the button", dragging(this->kAtControl, this->kAtControl, 0, false)},
      {"a tap outside", dragging(outside, outside, 0, false)},
      {"a swipe", dragging(this->kAtControl, this->kAtControl + down, 100, false)},
  };
  for (const auto& way : ways) {
    this->openHanging();
    QElapsedTimer since;
    since.start();
    way.perform(this->screen);
    EXPECT_TRUE(waitUntil([&] { return !this->isOpen(); }, std::chrono::seconds(3))) << way.by;
    EXPECT_LT(since.elapsed(), 1000) << way.by;
    EXPECT_TRUE(waitUntil([&] { return TypeParam::hasFocus(this->opener); })) << way.by;
  }
}

TYPED_TEST(PageEnd, AKilledPageIsToldOfAndGivesTheFocusBack) {
  this->openBlue("<input onfocus=\"tell('in')\">");
  this->screen.key(Qt::Key_Tab);
  this->screen.key(Qt::Key_Tab);
  ASSERT_TRUE(this->reported("in"));
  QLoggingCategory::setFilterRules("quorix.web.warning=true");
  {
    const LogListener log;
    for (const pid_t renderer : engineRenderers()) kill(renderer, SIGKILL);
    EXPECT_TRUE(waitUntil([&] { return this->ends == 1; }));
    EXPECT_EQ(
        LogListener::lines().filter("quorix.web: https://modules.quorix.example/page ").size(), 1);
  }
  QLoggingCategory::setFilterRules({});
  QAccessibleInterface* control = this->screen.find("Close page");
  this->screen.key(Qt::Key_Tab);
  EXPECT_TRUE(waitUntil([&] { return control->state().focused; })) << "the sheet has the keys";
  this->screen.key(Qt::Key_Escape);
  EXPECT_TRUE(waitUntil([&] { return !this->isOpen(); }, std::chrono::seconds(1)));
  EXPECT_TRUE(waitUntil([&] { return TypeParam::hasFocus(this->opener); }));
}

TYPED_TEST(PageEnd, TheInfoWidgetSaysThatItsPageIsGoneAndShowsItAgain) {
  const char *address = "/html/overlays/info", *sentence = "Sidan kan inte visas just nu.";
  const examples::StandInPages::Answer blue = page("#0000ff"),
                                       away{302, "", "Location: https://nowhere.example/\r\n"};
  auto* row = this->screen.add(
      InfoWidgetBuilder::buildSwiftUIInfoWidgetView("sv", {{}, {}, {}, false}), {20, 100, 300, 0});
  for (const bool died : {true, false}) {
    SCOPED_TRACE(died);
    pages().serve(address, died ? blue : away);
    this->screen.click("Läs mer");
    if (died) {
      ASSERT_TRUE(this->isPainted(Qt::blue));
      for (const pid_t renderer : engineRenderers()) kill(renderer, SIGKILL);
    }
    ASSERT_TRUE(waitUntil([&] { return this->screen.shows(sentence); }));
    this->screen.settle();
    EXPECT_NE(this->at(this->kInPage), QColor(Qt::blue));
    pages().serve(address, blue);
    this->screen.key(Qt::Key_Tab);
    this->screen.key(Qt::Key_Return);
    EXPECT_TRUE(this->isPainted(Qt::blue));
    EXPECT_FALSE(this->screen.shows(sentence));
    this->screen.key(Qt::Key_Escape);
    EXPECT_TRUE(waitUntil([&] { return TypeParam::hasFocus(row); }));
  }
}

TYPED_TEST(PageEnd, ALoadThatStandsStillIsStopped) {
  QTcpServer silent;
  ASSERT_TRUE(silent.listen(QHostAddress::LocalHost));
  QPointer<QTcpSocket> asking;  // the engine opens other connections in advance
  QObject::connect(&silent, &QTcpServer::newConnection, &silent, [&] {
    while (QTcpSocket* socket = silent.nextPendingConnection()) {
      QObject::connect(socket, &QTcpSocket::readyRead, socket, [&, socket] { asking = socket; });
    }
  });
  this->timeout = std::chrono::milliseconds(1500);
  this->open("http://127.0.0.1:" + std::to_string(silent.serverPort()) + "/");
  ASSERT_TRUE(waitUntil([&] { return asking != nullptr; }));
  QElapsedTimer since;
  since.start();
  EXPECT_TRUE(waitUntil([&] { return asking->state() == QAbstractSocket::UnconnectedState; },
                        std::chrono::seconds(5)))
      << "the engine lets go of the connection";
  EXPECT_TRUE(waitUntil([&] { return this->failures == 1; })) << "nothing came";
  EXPECT_GT(since.elapsed(), 400);
  EXPECT_TRUE(this->isOpen());
  EXPECT_EQ(this->at(this->kInPage), kGround);

  this->screen.key(Qt::Key_Escape);
  pages().serve("/never", {.comes = false});
  this->openBlue("<img src='/never'>");
  QTest::qWait(1600);  // longer than the limit of a load
  EXPECT_EQ(this->at(this->kInPage), QColor(Qt::blue)) << "what has come stays";
  EXPECT_EQ(this->failures, 1);
}

}  // namespace
}  // namespace quorix::testing
