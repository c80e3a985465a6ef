#include <QDesktopServices>
#include <QDir>
#include <QGuiApplication>
#include <QStandardPaths>

#include "tests/web/LogListener.h"
#include "tests/web/PageTest.h"

namespace quorix::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

template <class Screen>
struct PageRequests : PageTest<Screen> {};
TYPED_TEST_SUITE(PageRequests, Screens, ScreenName);

/// The engine requires a user gesture for some requests.
enum class When { atOnce, onClick };
using enum When;

/// A page's request to a browser or its user.
struct Request {
  const char* what;
  When when;
  const char* script;
  const char* answer = "done";  ///< the page's report
};

/// Functions that the scripts use.
constexpr const char* kScript = R"(
  const later = () => setTimeout(() => tell('done'), 300);
  const granted = yes => tell(yes ? 'granted' : 'refused');
  const asked = async ask => { try { await ask(); granted(true) } catch (e) { granted(false) } };
  const add = (tag, more) => {
    const element = Object.assign(document.createElement(tag), more);
    document.body.append(element);
    return element;
  }; )";

const Request kRequests[] = {
    // Permissions.
    {"a place", atOnce,
     "asked(() => new Promise((yes, no) => navigator.geolocation.getCurrentPosition(yes, no)))",
     "refused"},
    {"a camera", atOnce, "asked(() => navigator.mediaDevices.getUserMedia({video: true}))",
     "refused"},
    {"a microphone", atOnce, "asked(() => navigator.mediaDevices.getUserMedia({audio: true}))",
     "refused"},
    {"the screen", onClick, "asked(() => navigator.mediaDevices.getDisplayMedia())", "refused"},
    {"notifications", atOnce, "Notification.requestPermission().then(tell)", "denied"},
    {"the clipboard", onClick, "asked(() => navigator.clipboard.readText())", "refused"},
    {"a pasted text", onClick, "granted(document.execCommand('paste'))", "refused"},
    {"the pointer", onClick,
     "document.onpointerlockerror = () => granted(false); "
     "document.onpointerlockchange = () => granted(true); document.body.requestPointerLock()",
     "refused"},
    {"the whole screen", onClick, "asked(() => document.body.requestFullscreen())", "refused"},
    {"a passkey", onClick,
     "asked(() => navigator.credentials.get({publicKey: {challenge: new Uint8Array(8), "
     "timeout: 500}}))",
     "refused"},
    {"to open links of a kind", onClick,
     "try { navigator.registerProtocolHandler('web+shop', '/page?%s') } catch (e) {} later()"},
    // Newer engines do not ask; they have their own limit.
    {"more room", atOnce,
     "navigator.webkitPersistentStorage ? navigator.webkitPersistentStorage.requestQuota("
     "1e9, bytes => granted(bytes > 0), () => granted(false)) : granted(false)",
     QT_VERSION < QT_VERSION_CHECK(6, 5, 0) ? "refused" : "granted"},
    // Dialogs.
    {"a warning", atOnce, "alert('x'); tell('done')"},
    {"a yes", atOnce, "granted(confirm('x'))", "refused"},
    {"a word", atOnce, "granted(prompt('x', 'y') !== null)", "refused"},
    {"a color", onClick, "add('input', {type: 'color'}).click(); later()"},
    {"a file", onClick, "add('input', {type: 'file'}).click(); later()"},
    {"a file to write", onClick, "asked(() => showSaveFilePicker())", "refused"},
    {"a folder", onClick, "asked(() => showDirectoryPicker())", "refused"},
    {"a name and a password", atOnce, "fetch('/secret').then(r => granted(r.status != 401))",
     "refused"},
    {"paper", onClick, "print(); later()"},
    {"another place and size", onClick, "moveTo(0, 0); resizeTo(9, 9); later()"},
    {"its end", onClick, "close(); later()"},
    {"lines on the log", onClick,
     "for (let i = 0; i < 100; ++i) { console.error(i); console.warn(i); console.log(i) } "
     "setTimeout(() => { throw 'x' }, 20); later()"},
    // Addresses that leave the page.
    {"another app", onClick, "location = 'whatsapp://send?text=x'; later()"},
    {"a call from a frame", atOnce, "add('iframe', {src: 'tel:1'}); later()"},
    {"a download", onClick,
     "add('a', {href: 'data:,x', download: 'quorix-kept'}).click(); later()"},
};

/// Records the addresses that the engine opens on the desktop without asking us.
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
  for (const Request& request : kRequests) {
    SCOPED_TRACE(request.what);
    const QByteArray run = kScript + QByteArray("const ask = () => { ") + request.script + " };";
    pages().forgetRequests("/report");
    this->openBlue("<div style='height:2000px'>x</div>",
                   run + (request.when == onClick ? "onclick = () => { onclick = null; ask() }"
                                                  : "setTimeout(ask, 20)"));
    const int before = windowsOnScreen();
    const LogListener log;
    if (request.when == onClick) {
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
  QTest::qWait(1500);  // longer than a tooltip's delay
  EXPECT_EQ(windowsOnScreen(), before);
  QTest::mouseClick(&this->screen.window(), Qt::RightButton, {}, this->kInPage);
  EXPECT_TRUE(this->reported("menu"));
  this->screen.settle();
  EXPECT_EQ(windowsOnScreen(), before);
  EXPECT_EQ(this->at(this->kInPage), QColor(Qt::blue));
}

}  // namespace
}  // namespace quorix::testing

#include "PageRequestsTest.moc"
