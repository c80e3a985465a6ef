#include "qt/web/EscapeKey.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <utility>

namespace quorix::qt {

EscapeKey::EscapeKey(std::function<bool(const QObject& window)> isForPage)
    : isForPage_(std::move(isForPage)) {
  qApp->installEventFilter(this);
}

bool EscapeKey::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress || !watched->isWindowType()) return false;
  const auto& key = static_cast<const QKeyEvent&>(*event);
  if (key.key() != Qt::Key_Escape || key.text().isEmpty() || !isForPage_(*watched)) return false;
  QKeyEvent bare(key.type(), key.key(), key.modifiers(), key.nativeScanCode(),
                 key.nativeVirtualKey(), key.nativeModifiers(), QString(), key.isAutoRepeat());
  bare.setTimestamp(key.timestamp());
  QCoreApplication::sendEvent(watched, &bare);
  event->setAccepted(bare.isAccepted());
  return true;
}

}  // namespace quorix::qt
