#include "qt/DesktopPortal.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <utility>

namespace quorix::qt {
namespace {

const QString kService = QStringLiteral("org.freedesktop.portal.Desktop");
const QString kPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString kInterface = QStringLiteral("org.freedesktop.portal.Settings");
const QString kAppearance = QStringLiteral("org.freedesktop.appearance");
const QString kReducedMotion = QStringLiteral("reduced-motion");
const QString kGnome = QStringLiteral("org.gnome.desktop.interface");
const QString kTextScale = QStringLiteral("text-scaling-factor");
const QString kAnimations = QStringLiteral("enable-animations");

/// The value in an answer, which older services wrap twice.
QVariant unwrapped(const QDBusVariant& value) {
  const QVariant inner = value.variant();
  return inner.canConvert<QDBusVariant>() ? inner.value<QDBusVariant>().variant() : inner;
}

}  // namespace

DesktopPortal::DesktopPortal() {
  QDBusConnection bus = QDBusConnection::sessionBus();
  if (!bus.isConnected()) return;
  qRegisterMetaType<QDBusVariant>();  // Qt finds the slot's types by name
  bus.connect(kService, kPath, kInterface, QStringLiteral("SettingChanged"), this,
              SLOT(take(QString, QString, QDBusVariant)));
  ask(kAppearance, kReducedMotion);
  ask(kGnome, kAnimations);
  ask(kGnome, kTextScale);
}

void DesktopPortal::ask(const QString& group, const QString& key) {
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

void DesktopPortal::take(const QString& group, const QString& key, const QDBusVariant& value) {
  const auto before = std::pair(prefersReducedMotion(), textScale_);
  if (group == kAppearance && key == kReducedMotion) reducedMotion_ = unwrapped(value).toUInt();
  if (group == kGnome && key == kAnimations) animations_ = unwrapped(value).toBool();
  if (group == kGnome && key == kTextScale) textScale_ = unwrapped(value).toDouble();
  if (std::pair(prefersReducedMotion(), textScale_) != before) emit changed();
}

}  // namespace quorix::qt
