#include "tests/qt/LoopbackServer.h"
#include "tests/web/PageTest.h"

namespace quorix::testing {
namespace {

using ::testing::ElementsAre;

template <class Screen>
struct PageView : PageTest<Screen> {};
TYPED_TEST_SUITE(PageView, Screens, ScreenName);

TYPED_TEST(PageView, AsksForExactlyItsAddress) {
  const std::pair<std::string, std::string> rows[] = {
      {kModules, "/html/overlays/info?lang"},
      {kWidget, "/users/details/?lang=no&name=A%20%26%20B%C3%A5+c&token=a/b?c%2541~"},
  };
  for (const auto& [service, target] : rows) {
    this->open(service + target);
    ASSERT_TRUE(waitUntil([] { return !pages().requests().empty(); }));
    const auto& request = pages().requests().front();
    EXPECT_EQ(request.line.toStdString(), "GET " + target + " HTTP/1.1");
    EXPECT_EQ("https://" + request.host.toStdString(), service);
    EXPECT_THAT(request.head.toStdString(), ::testing::HasSubstr("QtWebEngine/"));
    this->screen.key(Qt::Key_Escape);
    pages().forgetRequests();
  }
}

TYPED_TEST(PageView, ShowsItsGroundUntilThePageHasPaintedAndWhenItFails) {
  pages().serve("/never", {.comes = false});
  pages().serve("/empty", {.status = 404, .body = ""});
  const LoopbackServer untrusted(LoopbackServer::Scheme::https);
  const std::pair<std::string, bool> rows[] = {
      {std::string(kModules) + "/never", false},
      {std::string(kModules) + "/empty", false},
      {"https://127.0.0.1:1/", true},
      {untrusted.base() + "/", true},
      {"https://nowhere.quorix.example/", true},
  };
  for (const auto& [address, fails] : rows) {
    this->failures = 0;
    this->open(address);
    EXPECT_TRUE(!fails || waitUntil([&] { return this->failures == 1; })) << address;
    for (int i = 0; i < 5; ++i) this->screen.settle();
    EXPECT_EQ(this->failures, fails) << address;
    EXPECT_EQ(this->at(this->kInPage), kGround) << address;
    EXPECT_TRUE(this->isOpen());
    this->screen.key(Qt::Key_Escape);
    EXPECT_FALSE(this->isOpen()) << address;
  }
  pages().serve("/missing", {.status = 404, .body = "<body style='background:#00f'>"});
  this->open(std::string(kModules) + "/missing");
  EXPECT_TRUE(this->shows(Qt::blue)) << "an error with a page is a page";
}

TYPED_TEST(PageView, LeavesItsGroundWhereThePageHasNone) {
  this->openPainted(page("transparent", "<div style='background:#00f;height:480px'></div>"),
                    Qt::blue);
  EXPECT_EQ(this->at({100, 590}), kGround);
}

TYPED_TEST(PageView, RunsScriptsOnlyWhereItMay) {
  this->settings.allowsContentJavaScript = false;
  this->openPainted(page("#00f", {}, "document.body.style.background = '#f00'"), Qt::blue);
  EXPECT_TRUE(pages().requests("/here").empty());
}

TYPED_TEST(PageView, NewWindowsAndOtherAppsLeaveTheAppAndThePageStays) {
  for (const QByteArrayList& row : tableOf("ways_out")) {
    SCOPED_TRACE(row.at(0).toStdString());
    const QByteArray &how = row.at(1), &content = row.at(2), &script = row.at(3);
    QByteArray leave = row.at(4);
    if (leave.startsWith('/')) leave.prepend(kModules);
    const int clicks = how.contains("twice") ? 2 : how.contains("click");
    this->windows.clear();
    this->settings.javaScriptCanOpenWindowsAutomatically = how.contains("freely");
    this->openBlue("<style>a, div { display: block; height: 2000px }</style>" + content, script);
    for (std::size_t click = 1; click <= std::size_t(clicks); ++click) {
      QTest::mouseClick(
          &this->screen.window(), how.contains("middle") ? Qt::MiddleButton : Qt::LeftButton,
          how.contains("control") ? Qt::ControlModifier : Qt::NoModifier, this->kInPage);
      EXPECT_TRUE(waitUntil([&] { return this->windows.size() >= click; }));
    }
    EXPECT_TRUE(waitUntil([&] { return this->windows.empty() == leave.isEmpty(); }));
    QTest::qWait(300);
    std::string left;
    for (const std::string& address : this->windows) left += (left.empty() ? "" : " ") + address;
    EXPECT_EQ(left, leave.toStdString());
    EXPECT_EQ(this->at(this->kInPage), QColor(Qt::blue));
    EXPECT_TRUE(pages().requests("/other").empty());
    EXPECT_EQ(this->failures, 0);
    this->screen.key(Qt::Key_Escape);
    EXPECT_TRUE(waitUntil([&] { return !this->isOpen(); }));
  }
}

TYPED_TEST(PageView, MayEndWithTheWindowThatItAsksFor) {
  this->openBlue("<div style='height:2000px' onclick=\"window.open('/other?x=1')\">x</div>");
  auto page = this->latest.lock();
  page->onNewWindow = [this](const auto&) { delete this->opener; };
  page.reset();
  QTest::mouseClick(&this->screen.window(), Qt::LeftButton, {}, this->kInPage);
  EXPECT_TRUE(waitUntil([&] { return this->latest.expired(); }));
}

TYPED_TEST(PageView, ReachesNoFiles) {
  const QByteArray secret = "file:///etc/passwd";
  const QByteArray rows[] = {
      "location = '" + secret + "'",
      "document.body.innerHTML = \"<iframe src='" + secret + "' style='width:99%'></iframe>\"",
      "const a = document.createElement('a'); a.href = '" + secret + "'; a.click()",
      "location = 'chrome://version'",
      "location = 'qrc:/quorix/web/quick/WebPage.qml'",
      "location = 'view-source:" + secret + "'",
  };
  for (const QByteArray& script : rows) {
    this->openBlue({}, "setTimeout(() => { try { " + script + " } catch (e) {} fetch('" + secret +
                           "')"
                           ".then(r => r.text()).then(t => tell('read ' + t))"
                           ".catch(() => tell('refused')) }, 50)");
    EXPECT_TRUE(this->reported("refused")) << script.toStdString();
    this->screen.settle();
    EXPECT_EQ(this->at(this->kInPage), QColor(Qt::blue)) << script.toStdString();
    EXPECT_THAT(reports().join('\n').toStdString(), ::testing::Not(::testing::HasSubstr("read")));
    this->screen.key(Qt::Key_Escape);
    pages().forgetRequests();
  }
}

TYPED_TEST(PageView, FollowsLinksAndLeadsBackAndForward) {
  for (const bool allowed : {true, false}) {
    this->settings.allowsBackForwardNavigationGestures = allowed;
    pages().serve("/next", page("#ff0000"));
    this->openBlue("<a style='display:block;height:2000px' href='/next'>x</a>");
    QTest::mouseClick(&this->screen.window(), Qt::LeftButton, {}, this->kInPage);
    ASSERT_TRUE(this->isPainted(Qt::red));
    this->screen.key(Qt::Key_Left, Qt::AltModifier);
    if (!allowed) {
      this->screen.settle();
      EXPECT_EQ(this->at(this->kInPage), QColor(Qt::red));
      continue;
    }
    EXPECT_TRUE(this->isPainted(Qt::blue));
    this->screen.key(Qt::Key_Right, Qt::AltModifier);
    EXPECT_TRUE(this->isPainted(Qt::red));
    this->screen.key(Qt::Key_Back);
    EXPECT_TRUE(this->isPainted(Qt::blue));
    QTest::qWait(600);  // longer than a page's time limit for a key
    EXPECT_TRUE(this->isOpen());
    QTest::mouseClick(&this->screen.window(), Qt::ForwardButton, {}, this->kInPage);
    EXPECT_TRUE(this->isPainted(Qt::red));
    QTest::mouseClick(&this->screen.window(), Qt::BackButton, {}, this->kInPage);
    EXPECT_TRUE(this->isPainted(Qt::blue));
    this->screen.key(Qt::Key_Back);
    EXPECT_TRUE(waitUntil([&] { return !this->isOpen(); })) << "no way back but out";
  }
}

TYPED_TEST(PageView, KeepsTheHostResponsiveUnderHostilePages) {
  pages().serve("/round", [](const auto&) {
    return examples::StandInPages::Answer{302, "", "Location: /round\r\n"};
  });
  const std::pair<std::string, QByteArray> rows[] = {
      {"/page", "setTimeout(() => { for (;;); }, 50)"},
      {"/page", "setInterval(() => { for (let i = 0; i < 50; ++i) open('/other') }, 20)"},
      {"/page", "setInterval(() => { history.pushState(0, 0, '#' + Math.random()) }, 1)"},
      {"/round", {}},
  };
  for (const auto& [path, script] : rows) {
    pages().serve("/page", page("#0000ff", {}, script));
    this->open(kModules + path);
    ASSERT_TRUE(waitUntil([] { return pages().requests().size() > 1; }));
    QElapsedTimer turn;
    qint64 longest = 0;
    for (int i = 0; i < 30; ++i) {
      turn.restart();
      QTest::qWait(10);
      longest = std::max(longest, turn.elapsed());
    }
    EXPECT_LT(longest, 250) << path << script.toStdString();
    this->screen.clickAt(this->kAtControl);
    EXPECT_FALSE(this->isOpen()) << path << script.toStdString();
    pages().forgetRequests();
  }
}

}  // namespace
}  // namespace quorix::testing
