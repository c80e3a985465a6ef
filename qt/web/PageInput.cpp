#include "qt/web/PageInput.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QKeyEvent>
#include <QTouchEvent>
#include <QWheelEvent>
#include <utility>

#include "platform/webkit/PageRules.h"
#include "qt/Conversions.h"

namespace quorix::qt {
namespace {

using Phase = hosting::PointerEvent::Phase;

/// A page has so long to act on what the user did, in milliseconds.
constexpr qint64 gestureLasts = 1000;

bool isGesture(const QEvent& event) {
  return event.type() == QEvent::MouseButtonRelease || event.type() == QEvent::TouchEnd ||
         event.type() == QEvent::KeyPress;
}

}  // namespace

PageInput::PageInput(std::function<bool(const QObject& receiver)> isForPage,
                     WebPage::Client& client)
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
  if (!watched->isWindowType()) return takesFromPage(*watched, *event);
  if (!isGesture(*event) || !isForPage_(*watched)) return false;
  gesture_.start();
  return event->type() == QEvent::KeyPress && takesKey(*watched, static_cast<QKeyEvent&>(*event));
}

bool PageInput::takesKey(QObject& window, QKeyEvent& key) {
  const bool escapes = key.key() == Qt::Key_Escape;
  if (!escapes && key.key() != Qt::Key_Back) return false;
  client_.closingKeyGiven();
  if (!escapes || key.text().isEmpty()) return false;
  QKeyEvent bare(key.type(), key.key(), key.modifiers(), key.nativeScanCode(),
                 key.nativeVirtualKey(), key.nativeModifiers(), QString(), key.isAutoRepeat());
  bare.setTimestamp(key.timestamp());
  QCoreApplication::sendEvent(&window, &bare);
  key.setAccepted(bare.isAccepted());
  return true;
}

bool PageInput::takesFromPage(QObject& receiver, const QEvent& event) {
  switch (event.type()) {
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
      return isForPage_(receiver) && takesTouch(receiver, static_cast<const QTouchEvent&>(event));
    case QEvent::Wheel:
      if (isForPage_(receiver)) tellScroll(static_cast<const QWheelEvent&>(event));
      return false;
    default:
      return false;
  }
}

bool PageInput::takesTouch(QObject& receiver, const QTouchEvent& event) {
  if (event.points().isEmpty()) return false;
  const bool begins = event.type() == QEvent::TouchBegin;
  const bool ends = event.type() == QEvent::TouchEnd;
  const QPointF point = event.points().constFirst().position();
  const bool had = !begins && hasFingers_;
  const bool takes = client_.touched({begins ? Phase::pressed
                                      : ends ? Phase::released
                                             : Phase::moved,
                                      {point.x(), point.y()},
                                      static_cast<int>(event.points().size()),
                                      receiver.property("width").toDouble()});
  hasFingers_ = had || takes;
  if (hasFingers_) gesture_.invalidate();  // the page did not get it
  if (hasFingers_ && !had) {
    QTouchEvent cancel(QEvent::TouchCancel, event.pointingDevice(), event.modifiers());
    QCoreApplication::sendEvent(&receiver, &cancel);
  }
  return hasFingers_;
}

/// A mouse's wheel has no phases.
void PageInput::tellScroll(const QWheelEvent& event) {
  if (event.phase() == Qt::NoScrollPhase) return;
  const bool begins = event.phase() == Qt::ScrollBegin;
  client_.scrolled({begins, begins || event.phase() == Qt::ScrollUpdate,
                    double(event.pixelDelta().x()), double(event.pixelDelta().y()),
                    double(QDateTime::currentMSecsSinceEpoch())});
}

}  // namespace quorix::qt
