#include <gtest/gtest.h>

#include <QDesktopServices>
#include <QObject>
#include <QUrl>

#include "platform/uikit/URLOpener.h"
#include "qt/Engine.h"

namespace {

/// What a host sets for a scheme; it stands where the desktop would.
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
  quorix::qt::installEngine();
  Handler handler;
  const QByteArray address = "https://shop.example/a%20b?name=%C3%85sa%26%2541+c%3D&x;y#f%23";
  const auto url = quorix::foundation::URL::parse(address.toStdString());
  EXPECT_TRUE(quorix::uikit::URLOpener::openOutside(*url));
  EXPECT_EQ(handler.taken, QList<QByteArray>{address});
}

}  // namespace

#include "QtURLOpenerTest.moc"
