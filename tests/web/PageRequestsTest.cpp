#include <gmock/gmock.h>

#include <QDesktopServices>
#include <QDir>
#include <QGuiApplication>
#include <QStandardPaths>
#include <QTest>

#include "tests/web/LogListener.h"
#include "tests/web/PageTest.h"

namespace quorix::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

template <class Screen>
struct PageRequests : PageTest<Screen> {};
TYPED_TEST_SUITE(PageRequests, Screens, ScreenName);

/// What a page asks a browser, or a browser's user, for.
struct Request {
  const char* what;
  QByteArray script;            ///< runs with the page, or on a click
  bool onClick;                 ///< the engine wants a user's gesture for it
  const char* answer = "done";  ///< what the page reports
};

std::vector<Request> requests() {
  const QByteArray clicked = "setTimeout(() => tell('done'), 300)";
  const auto input = [&](const QByteArray& type) {
    return "const i = document.createElement('input'); i.type = '" + type +
           "'; document.body.append(i); i.click(); " + clicked;
  };
  const auto promise = [](const QByteArray& asked) {
    return "(async () => { try { await " + asked +
           "; tell('granted') } catch (e) { tell('refused') } })()";
  };
  const QByteArray frame =
      "const f = document.createElement('iframe'); f.src = 'tel:1'; document.body.append(f); ";
  // Later engines do not ask; they have a limit of their own.
  const bool asksForRoom = QT_VERSION < QT_VERSION_CHECK(6, 5, 0);
  return {
      // Permissions.
      {"a place",
       "navigator.geolocation.getCurrentPosition(() => tell('granted'), () => "
       "tell('refused'))",
       false, "refused"},
      {"a camera", promise("navigator.mediaDevices.getUserMedia({video: true})"), false, "refused"},
      {"a microphone", promise("navigator.mediaDevices.getUserMedia({audio: true})"), false,
       "refused"},
      {"the screen", promise("navigator.mediaDevices.getDisplayMedia()"), true, "refused"},
      {"notifications", "Notification.requestPermission().then(a => tell(a))", false, "denied"},
      {"the clipboard", promise("navigator.clipboard.readText()"), true, "refused"},
      {"a pasted text", "tell(document.execCommand('paste') ? 'granted' : 'refused')", true,
       "refused"},
      {"the pointer",
       "document.onpointerlockerror = () => tell('refused'); "
       "document.onpointerlockchange = () => tell('granted'); "
       "document.body.requestPointerLock()",
       true, "refused"},
      {"the whole screen", promise("document.body.requestFullscreen()"), true, "refused"},
      {"a passkey",
       promise("navigator.credentials.get({publicKey: {challenge: new Uint8Array(8), "
               "timeout: 500}})"),
       true, "refused"},
      {"to open links of a kind",
       "try { navigator.registerProtocolHandler('web+shop', '/page?%s') } catch (e) {} " + clicked,
       true},
      {"more room",
       "navigator.webkitPersistentStorage ? "
       "navigator.webkitPersistentStorage.requestQuota(1e9, b => tell(b > 0 ? "
       "'granted' : 'refused'), () => tell('refused')) : tell('refused')",
       false, asksForRoom ? "refused" : "granted"},
      // Dialogs.
      {"a warning", "alert('x'); tell('done')", false},
      {"a yes", "tell(confirm('x') ? 'granted' : 'refused')", false, "refused"},
      {"a word", "tell(prompt('x', 'y') === null ? 'refused' : 'granted')", false, "refused"},
      {"a color", input("color"), true},
      {"a file", input("file"), true},
      {"a file to write",
       promise("(window.showSaveFilePicker ? showSaveFilePicker() : Promise.reject())"), true,
       "refused"},
      {"a folder",
       promise("(window.showDirectoryPicker ? showDirectoryPicker() : Promise.reject())"), true,
       "refused"},
      {"a name and a password",
       "fetch('/secret').then(r => tell(r.status == 401 ? 'refused' : 'granted'))", false,
       "refused"},
      {"paper", "print(); " + clicked, true},
      {"another place and size", "moveTo(0, 0); resizeTo(9, 9); " + clicked, true},
      {"its end", "close(); " + clicked, true},
      // Ways out.
      {"another app", "location = 'whatsapp://send?text=x'; " + clicked, true},
      {"a call from a frame", frame + clicked, false},
      {"a download",
       "const a = document.createElement('a'); a.href = 'data:,x'; "
       "a.download = 'quorix-kept'; "
       "a.click(); " +
           clicked,
       true},
  };
}

/// Records the addresses that the engine passes to the desktop without asking us.
class Desktop : public QObject {
  Q_OBJECT

 public:
  Desktop() {
    for (const char* scheme : kSchemes) QDesktopServices::setUrlHandler(scheme, this, "open");
  }
  ~Desktop() override {
    for (const char* scheme : kSchemes) QDesktopServices::unsetUrlHandler(scheme);
  }
  Q_INVOKABLE void open(const QUrl& url) { opened.append(url.toString()); }
  QStringList opened;

 private:
  static constexpr const char* kSchemes[] = {"whatsapp", "tel", "mailto", "https"};
};

int windowsOnScreen() {
  int count = 0;
  for (const QWindow* window : QGuiApplication::topLevelWindows()) count += window->isVisible();
  return count;
}

TYPED_TEST(PageRequests, AreRefusedWithoutAWord) {
  pages().serve("/secret", {.status = 401,
                            .headers = "WWW-Authenticate: Basic realm=\"x\"\r\n"
                                       "Content-Type: text/plain\r\n"});
  Desktop desktop;
  for (const Request& request : requests()) {
    SCOPED_TRACE(request.what);
    const QByteArray run = "const ask = () => { " + request.script + " };";
    pages().forgetRequests("/report");
    this->openBlue("<div style='height:2000px'>x</div>",
                   run + (request.onClick ? "onclick = () => { onclick = null; ask() }"
                                          : "setTimeout(ask, 20)"));
    const int before = windowsOnScreen();
    const LogListener log;
    if (request.onClick) {
      QTest::mouseClick(&this->screen.window(), Qt::LeftButton, {}, this->kInPage);
    }
    EXPECT_TRUE(waitUntil([] { return !reports().isEmpty(); }, std::chrono::seconds(8)));
    EXPECT_EQ(reports().value(0).toStdString(), request.answer);
    EXPECT_EQ(windowsOnScreen(), before);
    EXPECT_EQ(this->at(this->kInPage), QColor(Qt::blue));
    EXPECT_EQ(QGuiApplication::modalWindow(), nullptr);
    EXPECT_TRUE(this->isOpen());
    EXPECT_THAT(LogListener::lines().join('\n').toStdString(), IsEmpty());
    this->screen.key(Qt::Key_Escape);
    EXPECT_TRUE(waitUntil([&] { return !this->isOpen(); }));
  }
  EXPECT_THAT(desktop.opened.join('\n').toStdString(), IsEmpty());
  EXPECT_THAT(this->windows, ElementsAre("whatsapp://send?text=x")) << "no other way out";
  const QDir downloads(QStandardPaths::writableLocation(QStandardPaths::DownloadLocation));
  EXPECT_TRUE(downloads.entryList({"quorix-kept*"}).isEmpty());
}

TYPED_TEST(PageRequests, NoMenuAndNoTooltipOpen) {
  this->openBlue(
      "<a style='display:block;height:2000px' href='/x' title='y' "
      "onmousemove=\"tell('over')\" oncontextmenu=\"tell('menu')\">x</a>");
  const int before = windowsOnScreen();
  QTest::mouseMove(&this->screen.window(), this->kInPage);
  QTest::mouseMove(&this->screen.window(), this->kInPage + QPoint(1, 1));
  EXPECT_TRUE(this->reported("over"));
  QTest::qWait(1500);  // longer than a tooltip takes
  EXPECT_EQ(windowsOnScreen(), before);
  QTest::mouseClick(&this->screen.window(), Qt::RightButton, {}, this->kInPage);
  EXPECT_TRUE(this->reported("menu"));
  this->screen.settle();
  EXPECT_EQ(windowsOnScreen(), before);
  EXPECT_EQ(this->at(this->kInPage), QColor(Qt::blue));
}

TYPED_TEST(PageRequests, WordsStayOffTheHostsLog) {
  const LogListener log;
  this->openBlue({},
                 "for (let i = 0; i < 100; ++i) { console.error(i); console.warn(i); "
                 "console.log(i) } setTimeout(() => tell('said'), 50); "
                 "setTimeout(() => { throw 'x' }, 20)");
  EXPECT_TRUE(this->reported("said"));
  EXPECT_THAT(LogListener::lines().filter("js:").join('\n').toStdString(), IsEmpty());
}

}  // namespace
}  // namespace quorix::testing

#include "PageRequestsTest.moc"
