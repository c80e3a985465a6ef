#include "qt/Desktop.h"

#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QQmlComponent>
#include <QTemporaryDir>
#include <QUrl>
#include <optional>

#include "platform/uikit/URLOpener.h"
#include "qt/Engine.h"
#include "qt/HostedWindow.h"
#include "qt/SafeArea.h"
#include "tests/qt/Screens.h"

namespace quorix::testing {
namespace {

TEST(Desktop, ReadsTheWishForLessMotionFromTheDesktopsFiles) {
  const QByteArray before = qgetenv("XDG_CONFIG_HOME");
  const struct {
    const char* file;
    const char* text;
    bool reduced;
  } wishes[] = {{"kdeglobals", "[KDE]\nAnimationDurationFactor=0\n", true},
                {"kdeglobals", "[KDE]\nAnimationDurationFactor=0.5\n", false},
                {"gtk-4.0/settings.ini", "[Settings]\ngtk-enable-animations=0\n", true},
                {"gtk-3.0/settings.ini", "[Settings]\ngtk-enable-animations=false\n", true},
                {"gtk-3.0/settings.ini", "[Settings]\ngtk-enable-animations=1\n", false},
                {"gtk-3.0/settings.ini", "[Settings]\n", false}};
  for (const auto& wish : wishes) {
    const QTemporaryDir folder;
    QDir(folder.path()).mkpath(QFileInfo(wish.file).path());
    QFile file(folder.filePath(wish.file));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(wish.text);
    file.close();
    qputenv("XDG_CONFIG_HOME", folder.path().toLocal8Bit());
    EXPECT_EQ(qt::Desktop::prefersReducedMotion(), wish.reduced) << wish.file << '\n' << wish.text;
  }
  before.isEmpty() ? qunsetenv("XDG_CONFIG_HOME") : qputenv("XDG_CONFIG_HOME", before);
}

/// A host's handler for a scheme, in place of the desktop's.
class Handler : public QObject {
  Q_OBJECT
 public:
  Handler() { QDesktopServices::setUrlHandler("https", this, "take"); }
  ~Handler() override { QDesktopServices::unsetUrlHandler("https"); }
  QList<QByteArray> taken;

 public slots:
  void take(const QUrl& url) { taken.append(url.toEncoded()); }
};

TEST(QtURLOpener, HandsOverTheAddressAsItIs) {
  qt::installEngine();
  Handler handler;
  const QByteArray address = "https://shop.example/a%20b?name=%C3%85sa%26%2541+c%3D&x;y#f%23";
  const auto url = foundation::URL::parse(address.toStdString());
  EXPECT_TRUE(uikit::URLOpener::openOutside(*url));
  EXPECT_EQ(handler.taken, QList<QByteArray>{address});
}

SCREENS_TEST_SUITE(SafeArea);

TYPED_TEST(SafeArea, ASheetKeepsClearOfItAlsoWhenTheWindowTurns) {
  TypeParam screen;
  screen.add(FeeRow("4 €"), kPlace);
  qt::setSafeArea(screen.window(), QMargins(0, 47, 0, 34));
  screen.click("Row 4 €");
  const auto feeFromTheBottom = [&] {
    screen.settle();
    return screen.centerOf("Fee 4 €") - QPoint(0, screen.window().height());
  };
  const QPoint before = feeFromTheBottom();
  screen.window().resize(600, 360);
  qt::setSafeArea(screen.window(), QMargins(47, 0, 0, 21));
  EXPECT_EQ(feeFromTheBottom() - before, QPoint(120 + 23, 34 - 21));
  screen.window().resize(360, 600);
  qt::setSafeArea(screen.window(), std::nullopt);
  EXPECT_EQ(feeFromTheBottom() - before, QPoint(0, 34));
}

/// Behaves like Qt's own windows from 6.9 on.
class DeviceWindow : public QWindow {
  Q_OBJECT

 public:
  QMargins safeAreaMargins() const { return margins; }
  QMargins margins{0, 47, 0, 34};

 signals:
  void safeAreaMarginsChanged(QMargins margins);
};

TEST(SafeAreaWatcher, FollowsQtUnlessTheHostSaysOtherwise) {
  DeviceWindow window;
  std::vector<QMargins> told;
  const qt::SafeAreaWatcher watcher(window, [&](QMargins now) { told.push_back(now); });
  window.margins = {47, 0, 47, 21};
  emit window.safeAreaMarginsChanged(window.margins);
  qt::setSafeArea(window, QMargins());
  qt::setSafeArea(window, std::nullopt);
  EXPECT_EQ(told, (std::vector<QMargins>{{0, 47, 0, 34}, {47, 0, 47, 21}, {}, {47, 0, 47, 21}}));
}

TEST(SafeAreaWatcher, FollowsAHostInQml) {
  qmlRegisterType<DeviceWindow>("Device", 1, 0, "DeviceWindow");
  const std::pair<QByteArray, QMargins> rows[] = {
      {"", {0, 47, 0, 34}},
      {"WindowSafeArea.top: 0", {}},
      {"WindowSafeArea.top: 40; WindowSafeArea.left: height", {8, 40, 0, 0}},
  };
  for (const auto& [edges, covered] : rows) {
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData("import Device; import QuorixWidgets\nDeviceWindow {" + edges + "}", {});
    const std::unique_ptr<QObject> made(component.create());
    auto* window = qobject_cast<DeviceWindow*>(made.get());
    ASSERT_TRUE(window) << component.errorString().toStdString();
    window->setHeight(8);
    std::optional<QMargins> told;
    const qt::SafeAreaWatcher watcher(*window, [&](QMargins now) { told = now; });
    EXPECT_EQ(told, covered) << edges.data();
  }
}

}  // namespace
}  // namespace quorix::testing

#include "DesktopTest.moc"
