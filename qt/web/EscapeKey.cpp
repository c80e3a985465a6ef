#include "qt/web/EscapeKey.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <utility>

namespace quorix::qt {

EscapeKey::EscapeKey(std::function<bool(const QObject& window)> isForPage,
                     std::function<void()> given)
    : isForPage_(std::move(isForPage)), given_(std::move(given)) {
  qApp->installEventFilter(this);
}

bool EscapeKey::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress || !watched->isWindowType()) return false;
  const auto& key = static_cast<const QKeyEvent&>(*event);
  const bool escapes = key.key() == Qt::Key_Escape;
  if (!(escapes || key.key() == Qt::Key_Back) || !isForPage_(*watched)) return false;
  given_();
  if (!escapes || key.text().isEmpty()) return false;
  QKeyEvent bare(key.type(), key.key(), key.modifiers(), key.nativeScanCode(),
                 key.nativeVirtualKey(), key.nativeModifiers(), QString(), key.isAutoRepeat());
  bare.setTimestamp(key.timestamp());
  QCoreApplication::sendEvent(watched, &bare);
  event->setAccepted(bare.isAccepted());
  return true;
}

}  // namespace quorix::qt
