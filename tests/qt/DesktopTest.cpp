#include "qt/Desktop.h"

#include <gtest/gtest.h>

#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QUrl>

#include "platform/uikit/URLOpener.h"
#include "qt/Engine.h"

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

}  // namespace
}  // namespace quorix::testing

#include "DesktopTest.moc"
