#include "qt/web/PageInput.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <utility>

#include "platform/webkit/PageRules.h"
#include "qt/Conversions.h"

namespace quorix::qt {
namespace {

/// A page has so long to act on what the user did, in milliseconds.
constexpr qint64 gestureLasts = 1000;

bool isGesture(const QEvent& event) {
  return event.type() == QEvent::MouseButtonRelease || event.type() == QEvent::TouchEnd ||
         event.type() == QEvent::KeyPress;
}

}  // namespace

PageInput::PageInput(std::function<bool(const QObject& window)> isForPage, WebPage::Client& client)
    : isForPage_(std::move(isForPage)), client_(client) {
  qApp->installEventFilter(this);
}

bool PageInput::mayNavigate(const QUrl& address, bool mainFrame) {
  if (webkit::mayNavigateTo(address.scheme().toStdString())) return true;
  const bool byUser = takeGesture();
  if (byUser || mainFrame) client_.windowAsked(toText(address), byUser);
  return false;
}

bool PageInput::takeGesture() {
  const bool recent = gesture_.isValid() && gesture_.elapsed() < gestureLasts;
  gesture_.invalidate();
  return recent;
}

bool PageInput::eventFilter(QObject* watched, QEvent* event) {
  if (!isGesture(*event) || !watched->isWindowType() || !isForPage_(*watched)) return false;
  gesture_.start();
  if (event->type() != QEvent::KeyPress) return false;
  const auto& key = static_cast<const QKeyEvent&>(*event);
  const bool escapes = key.key() == Qt::Key_Escape;
  if (!escapes && key.key() != Qt::Key_Back) return false;
  client_.closingKeyGiven();
  if (!escapes || key.text().isEmpty()) return false;
  QKeyEvent bare(key.type(), key.key(), key.modifiers(), key.nativeScanCode(),
                 key.nativeVirtualKey(), key.nativeModifiers(), QString(), key.isAutoRepeat());
  bare.setTimestamp(key.timestamp());
  QCoreApplication::sendEvent(watched, &bare);
  event->setAccepted(bare.isAccepted());
  return true;
}

}  // namespace quorix::qt
