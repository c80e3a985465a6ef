#include "tests/qt/LoopbackServer.h"
#include "tests/web/PageTest.h"

namespace quorix::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

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
    EXPECT_THAT(request.head.toStdString(), HasSubstr("QtWebEngine/"));
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
    for (int i = 0; i < 10; ++i) this->screen.settle();
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

const QByteArray kFill = "display:block;height:2000px;";

QByteArray onClick(const QByteArray& script) {
  return "<div style='" + kFill + "' onclick=\"" + script + "\">x</div>";
}

/// The actions of a page, by itself or after a click, and the addresses that then leave the app.
struct WayOut {
  const char* what;
  QByteArray content = {}, script = {};
  std::vector<std::string> asked = {};
  int clicks = 1;
  Qt::MouseButton button = Qt::LeftButton;
  Qt::KeyboardModifiers modifiers = {};
  bool unasked = true;  ///< scripts may open windows without a gesture
};

std::vector<WayOut> waysOut() {
  const QByteArray link = "<a style='" + kFill + "' href='/other?x=1' ",
                   mail = "mailto:a@b.example";
  const QByteArray opens = "window.open('/other?x=1')", calls = "location = 'tel:+4612345'";
  const QByteArray flood = "for (let i = 0; i < 200; ++i) " + opens;
  const QByteArray callFlood = "setInterval(() => { " + calls + " }, 20)";
  const std::vector<std::string> once = {std::string(kModules) + "/other?x=1"};
  const std::vector<std::string> call = {"tel:+4612345"}, mails(2, mail.toStdString());
  return {
      {"a blank target", link + "target=_blank>x</a>", {}, once},
      {"a named target", link + "target=elsewhere>x</a>", {}, once},
      {"the middle button", link + ">x</a>", {}, once, 1, Qt::MiddleButton},
      {"the Control key", link + ">x</a>", {}, once, 1, Qt::LeftButton, Qt::ControlModifier},
      {"a script on click", onClick(opens), {}, once, 1, Qt::LeftButton, {}, false},
      {"a script by itself", {}, opens, once, 0},
      {"a script that may not", {}, opens, {}, 0, Qt::NoButton, {}, false},
      {"a flood", {}, flood, once, 0},
      {"a flood on click", onClick(flood), {}, once},
      {"a mail, twice", "<a style='" + kFill + "' href='" + mail + "'>x</a>", {}, mails, 2},
      {"a flood of calls", {}, callFlood, call, 0},
      {"a flood of calls on click", onClick(callFlood), {}, call},
  };
}

TYPED_TEST(PageView, NewWindowsAndOtherAppsLeaveTheAppAndThePageStays) {
  for (const WayOut& row : waysOut()) {
    SCOPED_TRACE(row.what);
    this->windows.clear();
    this->settings.javaScriptCanOpenWindowsAutomatically = row.unasked;
    this->openBlue(row.content, row.script);
    for (std::size_t click = 1; click <= std::size_t(row.clicks); ++click) {
      QTest::mouseClick(&this->screen.window(), row.button, row.modifiers, this->kInPage);
      EXPECT_TRUE(waitUntil([&] { return this->windows.size() >= click; }));
    }
    EXPECT_TRUE(waitUntil([&] { return this->windows.size() >= row.asked.size(); }));
    QTest::qWait(300);
    EXPECT_EQ(this->windows, row.asked);
    EXPECT_EQ(this->at(this->kInPage), QColor(Qt::blue));
    EXPECT_TRUE(pages().requests("/other").empty());
    EXPECT_EQ(this->failures, 0);
    this->screen.key(Qt::Key_Escape);
    EXPECT_TRUE(waitUntil([&] { return !this->isOpen(); }));
  }
}

TYPED_TEST(PageView, MayEndWithTheWindowThatItAsksFor) {
  this->openBlue(onClick("window.open('/other?x=1')"));
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
    EXPECT_THAT(reports().join('\n').toStdString(), Not(HasSubstr("read")));
    this->screen.key(Qt::Key_Escape);
    pages().forgetRequests();
  }
}

TYPED_TEST(PageView, FollowsLinksAndLeadsBackAndForward) {
  for (const bool allowed : {true, false}) {
    this->settings.allowsBackForwardNavigationGestures = allowed;
    pages().serve("/next", page("#ff0000"));
    this->openBlue("<a style='" + kFill + "' href='/next'>x</a>");
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
