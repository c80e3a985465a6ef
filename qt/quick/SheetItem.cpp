#include "qt/quick/SheetItem.h"

#include <QCursor>
#include <QQuickWindow>

#include "qt/AccessibilityBridge.h"
#include "qt/FocusRing.h"
#include "qt/Input.h"
#include "qt/Picture.h"
#include "qt/quick/PictureNode.h"
#include "qt/QtColor.h"
#include "qt/QtTextEngine.h"
#include "qt/quick/SheetNode.h"
#include "qt/ViewAccessible.h"

namespace quorix::qt {
namespace {

/// Above what pages stack, below the pop-ups of the Controls, which may be asked for over a sheet.
constexpr double kStacking = 1'000'000;

QRectF toRect(const layout::Rect& rect) {
  return {rect.left(), rect.top(), rect.size.width, rect.size.height};
}

bool closes(int key) { return key == Qt::Key_Escape || key == Qt::Key_Back; }
bool walks(int key) { return key == Qt::Key_Tab || key == Qt::Key_Backtab; }

}  // namespace

SheetItem::SheetItem(QQuickWindow& window)
    : QQuickItem(window.contentItem()),
      QuickAccessibleSurface(static_cast<QQuickItem&>(*this)),
      presenter_(QtTextEngine::shared(), *this),
      clock_([this](double seconds) { return presenter_.advance(seconds); }) {
  setFlag(ItemHasContents);
  setFlag(ItemIsFocusScope);
  setZ(kStacking);
  setAcceptedMouseButtons(Qt::AllButtons);
  setAcceptTouchEvents(true);
  setAcceptHoverEvents(true);
  setCursor(Qt::ArrowCursor);  // not that of what lies below
  AccessibilityBridge::instance()->add(*this, *this);
  QQuickItem* content = window.contentItem();
  const auto fill = [this, content] { setSize(content->size()); };
  connect(content, &QQuickItem::widthChanged, this, fill);
  connect(content, &QQuickItem::heightChanged, this, fill);
  fill();
}

SheetItem::~SheetItem() { AccessibilityBridge::instance()->remove(*this); }

const SheetItem* SheetItem::topmost(const QQuickWindow& window) {
  const SheetItem* found = nullptr;
  for (QQuickItem* child : window.contentItem()->childItems()) {
    const auto* sheet = qobject_cast<SheetItem*>(child);
    if (sheet && !sheet->closed_) found = sheet;
  }
  return found;
}

double SheetItem::scale() const { return window() ? window()->effectiveDevicePixelRatio() : 1; }

void SheetItem::setSettings(const EnvironmentSource& settings) {
  settings_ = settings;
  presenter_.setEnvironment(settings_.at(scale()));
  presenter_.setMotion(settings_.allowsMotion());
}

void SheetItem::present(const swiftui::Presentation& presentation) {
  presenter_.present(presentation);
  if (std::exchange(presented_, true)) return;
  focusBefore_ = window()->activeFocusItem();
  forceActiveFocus(Qt::PopupFocusReason);
  offer();
  ViewAccessible::focusChanged(*this);
}

void SheetItem::sheetDidClose() {
  if (std::exchange(closed_, true)) return;
  leave();
}

void SheetItem::abandon() {
  if (std::exchange(closed_, true)) return;
  clock_.stop();
  // On a later turn: the window may be on its way out, and does not bear a change of focus then.
  QMetaObject::invokeMethod(this, &SheetItem::leave, Qt::QueuedConnection);
}

void SheetItem::leave() {
  clock_.stop();
  giveFocusBack();
  setVisible(false);
  // The presenter is still at work, and so may be an event of this item.
  deleteLater();
}

void SheetItem::giveFocusBack() {
  if (!hasActiveFocus() || !window()) return;
  // A window on its way out takes its items off itself from the top down: it has no focus to give.
  if (!parentItem() || !parentItem()->window()) return;
  const bool there = focusBefore_ && focusBefore_->window() == window() &&
                     focusBefore_->isVisible() && focusBefore_->isEnabled();
  if (there) {
    focusBefore_->forceActiveFocus(Qt::PopupFocusReason);
  } else {
    setFocus(false, Qt::PopupFocusReason);
  }
}

void SheetItem::itemChange(ItemChange change, const ItemChangeData& data) {
  QQuickItem::itemChange(change, data);
  if (change == ItemDevicePixelRatioHasChanged) setSettings(settings_);
}

void SheetItem::geometryChange(const QRectF& now, const QRectF& before) {
  QQuickItem::geometryChange(now, before);
  presenter_.setWindow({now.width(), now.height()}, {});
}

// Frame.

void SheetItem::updatePolish() {
  if (closed_ || !presented_) return;
  const unsigned revision = presenter_.panelRevision();
  const render::Scene& panel = presenter_.panel();
  pictureHeight_ = panel.size.height;
  if (revision != paintedRevision_ || paintedScale_ != scale()) {
    panelPicture_ = paintPicture(panel, scale(), {0, 0, 0, 0});
    paintedRevision_ = revision;
    paintedScale_ = scale();
    ring_.reset();
    ViewAccessible::sceneChanged(*this);
  }
  followMotion();
  if (closed_) return;
  panel_ = toRect(presenter_.panelFrame());
  shade_ = toQColor(presenter_.shade());
  panelColor_ = toQColor(presenter_.panelColor());
  updateRing();
  update();
}

void SheetItem::followMotion() {
  if (!presenter_.isMoving()) return;
  if (settings_.allowsMotion()) {
    clock_.start();
  } else {
    presenter_.advance(0);
  }
}

void SheetItem::updateRing() {
  const auto frame = ringWanted_ ? focusedFrame() : std::nullopt;
  if (frame && (!ring_ || ring_->size != frame->size)) {
    ringPicture_ = FocusRing::picture(*frame, presenter_.panel().appearance, scale());
  }
  ring_ = frame;
}

QSGNode* SheetItem::updatePaintNode(QSGNode* old, UpdatePaintNodeData*) {
  auto* node = static_cast<SheetNode*>(old);
  if (!node) node = new SheetNode(*window());
  if (!panelPicture_.isNull()) {
    node->panel().setPicture(*window(), std::exchange(panelPicture_, {}));
  } else if (!node->panel().hasPicture()) {
    // The scene graph was made anew while the window was hidden.
    QMetaObject::invokeMethod(
        this, [this] { paintedRevision_.reset(), polish(); }, Qt::QueuedConnection);
  }
  node->setShade(boundingRect(), shade_);
  node->panel().setOrigin(panel_.topLeft());
  QRectF below = panel_;
  below.setTop(std::min(panel_.top() + pictureHeight_, height()));
  node->setBelow(below, panelColor_);
  if (!ring_) {
    node->ring().setPicture(*window(), {});
  } else if (!ringPicture_.isNull()) {
    node->ring().setPicture(*window(), std::exchange(ringPicture_, {}));
  }
  if (ring_) node->ring().setOrigin(FocusRing::frameAround(*ring_).topLeft());
  return node;
}

// Pointer. What happens here stays here: nothing below the sheet hears of it.

void SheetItem::pressed(QPointF point, quint64 at) {
  ringWanted_ = false;
  velocity_.reset();
  velocity_.add(point.y(), static_cast<double>(at) * 1e-3);
  presenter_.pointerPressed(toPoint(point));
  polish();
}

void SheetItem::moved(QPointF point, quint64 at) {
  velocity_.add(point.y(), static_cast<double>(at) * 1e-3);
  presenter_.pointerMoved(toPoint(point));
}

void SheetItem::released(QPointF point, quint64 at) {
  velocity_.add(point.y(), static_cast<double>(at) * 1e-3);
  presenter_.pointerReleased(toPoint(point), velocity_.velocity());
}

void SheetItem::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) pressed(event->position(), event->timestamp());
}

void SheetItem::mouseMoveEvent(QMouseEvent* event) { moved(event->position(), event->timestamp()); }

void SheetItem::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) released(event->position(), event->timestamp());
}

void SheetItem::touchEvent(QTouchEvent* event) {
  const auto report = finger_.read(*event);
  if (!report) return;
  switch (report->phase) {
    case FingerTracker::Phase::pressed:
      return pressed(report->position, event->timestamp());
    case FingerTracker::Phase::moved:
      return moved(report->position, event->timestamp());
    case FingerTracker::Phase::released:
      return released(report->position, event->timestamp());
    case FingerTracker::Phase::cancelled:
      return presenter_.pointerCancelled();
  }
}

void SheetItem::touchUngrabEvent() {
  finger_.forget();
  presenter_.pointerCancelled();
}

void SheetItem::wheelEvent(QWheelEvent* event) { event->accept(); }

void SheetItem::hoverMoveEvent(QHoverEvent* event) {
  const bool tappable = presenter_.scene().hitTest(toPoint(event->position())) != nullptr;
  const auto shape = tappable ? Qt::PointingHandCursor : Qt::ArrowCursor;
  if (cursor().shape() != shape) setCursor(shape);
}

// Keyboard.

bool SheetItem::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    event->setAccepted(closes(key) || activates(key) || walks(key));
    return true;
  }
  return QQuickItem::event(event);
}

void SheetItem::keyPressEvent(QKeyEvent* event) {
  if (closes(event->key())) {
    presenter_.dismiss();
  } else if (walks(event->key())) {
    const bool back = event->key() == Qt::Key_Backtab || event->modifiers() & Qt::ShiftModifier;
    presenter_.moveFocus(!back);
    ringWanted_ = true;
    ViewAccessible::focusChanged(*this);
    polish();
  } else if (activates(event->key())) {
    if (!event->isAutoRepeat()) presenter_.activateFocus();
  } else {
    event->ignore();
  }
}

void SheetItem::keyReleaseEvent(QKeyEvent* event) {
  // A phone closes the window when nobody takes the release of its Back key.
  event->setAccepted(closes(event->key()));
}

// Accessibility.

const std::vector<render::AccessibilityElement>& SheetItem::accessibilityElements() {
  return presenter_.scene().accessibility;
}

std::optional<layout::Rect> SheetItem::focusedFrame() const {
  return hasActiveFocus() ? presenter_.focusFrame() : std::nullopt;
}

}  // namespace quorix::qt
