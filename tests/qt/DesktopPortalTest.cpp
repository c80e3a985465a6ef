#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>

#include "tests/qt/Screens.h"

namespace quorix::testing {

/// The desktop's settings on the session bus.
class Portal : public QObject {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

 public:
  Portal() {
    bus_.registerObject(kPath, this, QDBusConnection::ExportAllSlots);
    bus_.registerService(QStringLiteral("org.freedesktop.portal.Desktop"));
  }
  bool isThere() const { return bus_.isConnected(); }
  void setTextScale(double scale) {
    scale_ = scale;
    auto changed = QDBusMessage::createSignal(
        kPath, QStringLiteral("org.freedesktop.portal.Settings"), QStringLiteral("SettingChanged"));
    changed << QStringLiteral("org.gnome.desktop.interface")
            << QStringLiteral("text-scaling-factor") << QVariant::fromValue(QDBusVariant(scale));
    bus_.send(changed);
  }

 public slots:
  QDBusVariant Read(const QString&, const QString& key) {
    if (key != QLatin1String("text-scaling-factor")) return QDBusVariant(0U);
    return QDBusVariant(QVariant::fromValue(QDBusVariant(scale_)));
  }

 private:
  // Its own connection, so that requests go over the bus.
  QDBusConnection bus_ =
      QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("portal"));
  const QString kPath = QStringLiteral("/org/freedesktop/portal/desktop");
  double scale_ = 2;
};

namespace {

Portal& portal() {
  static auto* portal = new Portal;
  return *portal;
}

SCREENS_TEST_SUITE(DesktopPortal);

TYPED_TEST(DesktopPortal, TellsTheTextSizeWhichAHostMayOverride) {
  if (!portal().isThere()) GTEST_SKIP() << "needs a session bus";
  TypeParam screen;
  auto* row = screen.add(swiftui::Text::verbatim("Row"), kPlace);
  const auto height = [row] {
    if constexpr (std::is_base_of_v<QWidget, std::remove_reference_t<decltype(*row)>>) {
      return row->sizeHint().height();
    } else {
      return static_cast<int>(row->implicitHeight());
    }
  };
  const auto becomes = [&](int expected) {
    return QTest::qWaitFor([&] { return std::abs(height() - expected) <= 1; });
  };
  row->setTextSize(swiftui::ContentSizeCategory::large);
  const int usual = height();
  row->setTextSize(std::nullopt);
  EXPECT_TRUE(becomes(usual * 33 / 17)) << "told when asked: " << height();
  portal().setTextScale(1.25);
  EXPECT_TRUE(becomes(usual * 21 / 17)) << "and at once when it changes: " << height();
  row->setTextSize(swiftui::ContentSizeCategory::large);
  EXPECT_TRUE(becomes(usual));
  portal().setTextScale(2);
  QTest::qWait(100);
  EXPECT_EQ(height(), usual);
}

}  // namespace
}  // namespace quorix::testing

#include "DesktopPortalTest.moc"
