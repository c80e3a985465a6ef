#include "qt/widgets/SheetWidget.h"

#include <QApplication>
#include <QHoverEvent>
#include <QPainter>
#include <utility>

#include "qt/AccessibilityBridge.h"
#include "qt/FocusRing.h"
#include "qt/Picture.h"
#include "qt/QtColor.h"
#include "qt/ViewAccessible.h"

namespace quorix::qt {

SheetWidget::SheetWidget(QWidget& window)
    : QWidget(&window),
      SheetSurface(static_cast<QObject&>(*this)),
      WidgetAccessibleSurface(static_cast<QWidget&>(*this)) {
  setAttribute(Qt::WA_AcceptTouchEvents);
  setAttribute(Qt::WA_Hover);
  setFocusPolicy(Qt::StrongFocus);
  setCursor(Qt::ArrowCursor);  // not that of the window
  hide();                      // until there is something to present
  AccessibilityBridge::instance()->add(*this, *this);
  window.installEventFilter(this);
  connect(qApp, &QApplication::focusChanged, this,
          [this](QWidget*, QWidget* now) { holdFocus(now); });
  setGeometry(window.rect());
  windowResized();
}

SheetWidget::~SheetWidget() { AccessibilityBridge::instance()->remove(*this); }

const SheetWidget* SheetWidget::topmost(const QWidget& window) {
  const SheetWidget* found = nullptr;
  for (QObject* child : window.children()) {
    const auto* sheet = qobject_cast<SheetWidget*>(child);
    if (sheet && sheet->isPresented() && !sheet->isClosed()) found = sheet;
  }
  return found;
}

// Focus.

void SheetWidget::takeFocusOver() {
  focusBefore_ = window()->focusWidget();
  show();
  raise();
  setFocus(Qt::PopupFocusReason);
}

void SheetWidget::giveFocusBack() {
  const QWidget* focused = window()->focusWidget();
  if (!focused || (focused != this && !isAncestorOf(focused))) return;
  const bool there = focusBefore_ && focusBefore_->window() == window() &&
                     focusBefore_->isVisible() && focusBefore_->isEnabled();
  if (there) {
    focusBefore_->setFocus(Qt::PopupFocusReason);
  } else {
    window()->focusWidget()->clearFocus();
  }
}

void SheetWidget::holdFocus(QWidget* now) {
  // A shortcut of the host's may lead to what lies below.
  const bool below = now && now != this && now->window() == window() && !isAncestorOf(now);
  if (below && topmost(*window()) == this) setFocus(Qt::PopupFocusReason);
}

bool SheetWidget::focusNextPrevChild(bool next) {
  if (isClosed()) return QWidget::focusNextPrevChild(next);
  walk(next);
  return true;
}

// Frame.

void SheetWidget::needsFrame() {
  if (std::exchange(settleQueued_, true)) return;
  QMetaObject::invokeMethod(
      this, [this] { settleQueued_ = false, settle(); }, Qt::QueuedConnection);
}

void SheetWidget::settle() {
  if (isClosed() || !isPresented()) return;
  presenter().panel();
  if (toldRevision_ != presenter().panelRevision()) {
    toldRevision_ = presenter().panelRevision();
    ViewAccessible::sceneChanged(*this);
  }
  followMotion();
  if (!isClosed()) update();
}

void SheetWidget::paintEvent(QPaintEvent*) {
  if (isClosed() || !isPresented()) return;
  const unsigned revision = presenter().panelRevision();
  const render::Scene& panel = presenter().panel();
  if (paintedRevision_ != revision || picture_.devicePixelRatio() != scale()) {
    picture_ = paintPicture(panel, scale(), {0, 0, 0, 0});
    paintedRevision_ = revision;
  }
  const layout::Rect frame = presenter().panelFrame();
  const double bottom = frame.top() + panel.size.height;
  QPainter painter(this);
  painter.fillRect(rect(), toQColor(presenter().shade()));
  painter.drawImage(QPointF(frame.left(), frame.top()), picture_);
  if (bottom < height()) {
    painter.fillRect(QRectF(frame.left(), bottom, frame.size.width, height() - bottom),
                     toQColor(presenter().panelColor()));
  }
  const auto ring = hasFocus() ? presenter().ringFrame() : std::nullopt;
  if (ring) FocusRing::paint(painter, FocusRing::frameAround(*ring), panel.appearance);
}

void SheetWidget::resizeEvent(QResizeEvent*) { windowResized(); }

void SheetWidget::windowResized() {
  presenter().setWindow({double(width()), double(height())}, {});
}

// Events. What happens here stays here: nothing below the sheet hears of it.

bool SheetWidget::event(QEvent* event) {
  switch (event->type()) {
    case QEvent::HoverEnter:
    case QEvent::HoverMove:
      pointAt(static_cast<QHoverEvent*>(event)->position());
      return true;
    case QEvent::HoverLeave:
    case QEvent::ContextMenu:
    case QEvent::ToolTip:
    case QEvent::WhatsThis:
      event->accept();
      return true;
    case QEvent::ScreenChangeInternal:
      followScale();
      break;
    default:
      break;
  }
  return (isEnabled() && handle(*event)) || QWidget::event(event);
}

bool SheetWidget::eventFilter(QObject* watched, QEvent* event) {
  if (watched == parentWidget() && !isClosed()) {
    if (event->type() == QEvent::Resize) setGeometry(parentWidget()->rect());
    if (event->type() == QEvent::ChildAdded) raise();  // over what comes later, too
  }
  return QWidget::eventFilter(watched, event);
}

void SheetWidget::pointAt(QPointF point) {
  const auto shape = takesTapAt(point) ? Qt::PointingHandCursor : Qt::ArrowCursor;
  if (cursor().shape() != shape) setCursor(shape);
}

// Accessibility.

const std::vector<render::AccessibilityElement>& SheetWidget::accessibilityElements() {
  return presenter().scene().accessibility;
}

std::optional<layout::Rect> SheetWidget::focusedFrame() const {
  return hasFocus() ? presenter().focusFrame() : std::nullopt;
}

}  // namespace quorix::qt
