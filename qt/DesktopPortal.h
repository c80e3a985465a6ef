#pragma once

#include <QObject>
#include <utility>
#ifdef QUORIX_DBUS
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#endif

#include "platform/swiftui/Environment.h"

namespace quorix::qt {

/// Asks the settings service that desktops on D-Bus share about motion and text size, in the
/// background and without starting it. Until it answers, and without D-Bus, motion and text size
/// are the usual ones. Main thread.
class DesktopPortal : public QObject {
  Q_OBJECT

 public:
  /// The user wants less motion.
  bool prefersReducedMotion() const { return reducedMotion_ == 1 || !animations_; }
  swiftui::ContentSizeCategory textSize() const {
    return swiftui::contentSizeCategoryFor(textScale_);
  }

 signals:
  void changed();

#ifdef QUORIX_DBUS
 public:
  DesktopPortal() {
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) return;
    qRegisterMetaType<QDBusVariant>();  // Qt finds the slot's types by name
    bus.connect(kService, kPath, kInterface, QStringLiteral("SettingChanged"), this,
                SLOT(take(QString, QString, QDBusVariant)));
    ask(kAppearance, kReducedMotion);
    ask(kGnome, kAnimations);
    ask(kGnome, kTextScale);
  }

 private slots:
  void take(const QString& group, const QString& key, const QDBusVariant& value) {
    const auto before = std::pair(prefersReducedMotion(), textSize());
    if (group == kAppearance && key == kReducedMotion) reducedMotion_ = unwrapped(value).toUInt();
    if (group == kGnome && key == kAnimations) animations_ = unwrapped(value).toBool();
    if (group == kGnome && key == kTextScale) textScale_ = unwrapped(value).toDouble();
    if (std::pair(prefersReducedMotion(), textSize()) != before) emit changed();
  }

 private:
  inline static const QString kService = QStringLiteral("org.freedesktop.portal.Desktop");
  inline static const QString kPath = QStringLiteral("/org/freedesktop/portal/desktop");
  inline static const QString kInterface = QStringLiteral("org.freedesktop.portal.Settings");
  inline static const QString kAppearance = QStringLiteral("org.freedesktop.appearance");
  inline static const QString kReducedMotion = QStringLiteral("reduced-motion");
  inline static const QString kGnome = QStringLiteral("org.gnome.desktop.interface");
  inline static const QString kTextScale = QStringLiteral("text-scaling-factor");
  inline static const QString kAnimations = QStringLiteral("enable-animations");

  void ask(const QString& group, const QString& key) {
    QDBusMessage question =
        QDBusMessage::createMethodCall(kService, kPath, kInterface, QStringLiteral("Read"));
    question.setArguments({group, key});
    question.setAutoStartService(false);
    auto* answer =
        new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(question), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, group, key, answer] {
      const QDBusPendingReply<QDBusVariant> reply = *answer;
      if (!reply.isError()) take(group, key, reply.value());
      answer->deleteLater();
    });
  }

  /// The value in an answer, which older services wrap twice.
  static QVariant unwrapped(const QDBusVariant& value) {
    const QVariant inner = value.variant();
    return inner.canConvert<QDBusVariant>() ? inner.value<QDBusVariant>().variant() : inner;
  }
#endif

 private:
  unsigned reducedMotion_ = 0;  ///< of every desktop: 1 for less
  bool animations_ = true;      ///< GNOME's older setting
  double textScale_ = 1;        ///< a multiple of the usual size
};

}  // namespace quorix::qt
