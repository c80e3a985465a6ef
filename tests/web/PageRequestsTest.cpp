#include <QDesktopServices>
#include <QDir>
#include <QGuiApplication>
#include <QStandardPaths>

#include "tests/web/LogListener.h"
#include "tests/web/PageTest.h"

namespace quorix::testing {
namespace {

using ::testing::ElementsAre;

template <class Screen>
struct PageRequests : PageTest<Screen> {};
TYPED_TEST_SUITE(PageRequests, Screens, ScreenName);

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
  for (const QByteArrayList& row : tableOf("requests")) {
    SCOPED_TRACE(row.at(0).toStdString());
    const bool onClick = row.at(1) == "on click";
    const QByteArrayList answers = row.at(2).split('/');
    const QByteArray run = kScript + QByteArray("const ask = () => { ") + row.at(3) + " };";
    pages().forgetRequests("/report");
    this->openBlue(
        "<div style='height:2000px'>x</div>",
        run + (onClick ? "onclick = () => { onclick = null; ask() }" : "setTimeout(ask, 20)"));
    const int before = windowsOnScreen();
    const LogListener log;
    if (onClick) {
      QTest::mouseClick(&this->screen.window(), Qt::LeftButton, {}, this->kInPage);
    }
    EXPECT_TRUE(waitUntil([] { return !reports().isEmpty(); }, std::chrono::seconds(8)));
    EXPECT_EQ(reports().value(0),
              QT_VERSION < QT_VERSION_CHECK(6, 5, 0) ? answers.first() : answers.last());
    EXPECT_EQ(windowsOnScreen(), before);
    EXPECT_EQ(this->at(this->kInPage), QColor(Qt::blue));
    EXPECT_EQ(QGuiApplication::modalWindow(), nullptr);
    EXPECT_TRUE(this->isOpen());
    EXPECT_THAT(LogListener::lines().join('\n').toStdString(), ::testing::IsEmpty());
    this->screen.key(Qt::Key_Escape);
    EXPECT_TRUE(waitUntil([&] { return !this->isOpen(); }));
  }
  EXPECT_THAT(desktop.opened.join('\n').toStdString(), ::testing::IsEmpty());
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
