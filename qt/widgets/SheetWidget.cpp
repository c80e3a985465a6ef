#include "qt/widgets/SheetWidget.h"

#include <QApplication>
#include <QHoverEvent>
#include <QPainter>
#include <algorithm>
#include <utility>

#include "qt/AccessibilityBridge.h"
#include "qt/FocusRing.h"
#include "qt/Picture.h"
#include "qt/QtColor.h"
#include "qt/ViewAccessible.h"

namespace quorix::qt {

SheetWidget::SheetWidget(QWidget& window)
    : QWidget(&window),
      SheetSurface(static_cast<QObject&>(*this), QStringLiteral("QuorixWebWidgets")),
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

SheetWidget::~SheetWidget() { AccessibilityBridge::remove(*this); }

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
  if (now && hasPageFocus()) pageTookFocus();
  // A shortcut of the host's may lead to what lies below.
  const bool below = now && now != this && now->window() == window() && !isAncestorOf(now);
  if (below && topmost(*window()) == this) setFocus(Qt::PopupFocusReason);
}

bool SheetWidget::focusNextPrevChild(bool next) {
  if (isClosed()) return QWidget::focusNextPrevChild(next);
  hasPageFocus() ? leftPages(next) : walk(next);
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
  updateLayers();
  followMotion();
  if (isClosed()) return;
  stack_.clear();
  followPages();
  updateFront();
  updateRing();
  update();
}

/// The panel's own picture: also when the window system asks for it before anything settled.
void SheetWidget::updatePanel() {
  const unsigned revision = presenter().panelRevision();
  const render::Scene& panel = presenter().panel();
  if (paintedRevision_ == revision && picture_.devicePixelRatio() == scale()) return;
  picture_ = paintPicture(hosting::layersOf(panel, scale()).front().scene, scale(), {0, 0, 0, 0});
  paintedRevision_ = revision;
}

void SheetWidget::updateLayers() {
  const render::Scene& panel = presenter().panel();
  if (layersRevision_ == presenter().panelRevision()) return;
  layersRevision_ = presenter().panelRevision();
  const auto layers = hosting::layersOf(panel, scale());
  while (layers_.size() + 1 > layers.size()) {
    delete layers_.back().picture;
    layers_.pop_back();
  }
  for (std::size_t i = 1; i < layers.size(); ++i) {
    if (layers_.size() < i) layers_.push_back({new PictureWidget(*this), {}});
    layers_[i - 1].origin = {layers[i].origin.x, layers[i].origin.y};
    layers_[i - 1].picture->setPicture(paintPicture(layers[i].scene, scale(), {0, 0, 0, 0}));
  }
  ringSize_.reset();
  ViewAccessible::sceneChanged(*this);
}

/// Puts what lies over the pages there. Without a page the pictures lie on the panel alone.
void SheetWidget::updateFront() {
  const layout::Point corner = presenter().panelFrame().origin;
  for (const Layer& layer : layers_) {
    layer.picture->move((QPointF(corner.x, corner.y) + layer.origin).toPoint());
    if (!stack_.contains(layer.picture)) stack_.append(layer.picture);
  }
  if (pageViews().empty()) return;
  if (!front_) front_ = new SheetWidgetFront(*this);
  front_->setGeometry(rect());
  front_->follow(presenter().scene());
  stack_.append(front_);
  QList<QObject*> standing = children();
  standing.removeIf([&](QObject* child) { return !stack_.contains(child); });
  const bool stands = std::equal(standing.begin(), standing.end(), stack_.begin(), stack_.end());
  if (stands) return;
  for (QWidget* widget : stack_) widget->raise();
}

void SheetWidget::updateRing() {
  const auto frame = hasFocus() ? presenter().ringFrame() : std::nullopt;
  if (!ring_ && frame) ring_ = new PictureWidget(*this);
  if (!ring_) return;
  ring_->setVisible(frame.has_value());
  if (!frame) return;
  if (ringSize_ != frame->size) {
    ring_->setPicture(FocusRing::picture(*frame, presenter().panel().appearance, scale()));
    ringSize_ = frame->size;
  }
  ring_->move(FocusRing::frameAround(*frame).topLeft().toPoint());
  if (children().constLast() != ring_) ring_->raise();
}

void SheetWidget::paintEvent(QPaintEvent*) {
  if (isClosed() || !isPresented()) return;
  updatePanel();
  const layout::Rect frame = presenter().panelFrame();
  const double bottom = frame.top() + presenter().panel().size.height;
  QPainter painter(this);
  painter.fillRect(rect(), toQColor(presenter().shade()));
  painter.drawImage(QPointF(frame.left(), frame.top()), picture_);
  if (bottom < height()) {
    painter.fillRect(QRectF(frame.left(), bottom, frame.size.width, height() - bottom),
                     toQColor(presenter().panelColor()));
  }
  QMetaObject::invokeMethod(
      this, [this] { wasShown(); }, Qt::QueuedConnection);
}

// Pages.

void SheetWidget::placePage(QObject& view, const layout::Rect& frame, int index) {
  auto* page = qobject_cast<QWidget*>(&view);
  if (!page) return;
  page->setGeometry(
      QRectF(frame.left(), frame.top(), frame.size.width, frame.size.height).toAlignedRect());
  page->show();
  stack_.append(page);
  if (std::size_t(index) < layers_.size()) stack_.append(layers_[std::size_t(index)].picture);
}

void SheetWidget::focusPage(QObject& view, bool forward) {
  if (auto* page = qobject_cast<QWidget*>(&view)) {
    page->setFocus(forward ? Qt::TabFocusReason : Qt::BacktabFocusReason);
  }
}

bool SheetWidget::hasPageFocus() const {
  const QWidget* focused = window()->focusWidget();
  return focused && focused != this && isAncestorOf(focused);
}

void SheetWidget::takeFocusFromPages() {
  // A page whose process ended may have taken the window's focus with it.
  if (hasPageFocus() || !window()->focusWidget()) setFocus(Qt::OtherFocusReason);
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
    if (event->type() == QEvent::ChildAdded && topmost(*parentWidget()) == this) raiseAll();
  }
  return QWidget::eventFilter(watched, event);
}

/// All of the window's sheets, in their order, over what comes later, too.
void SheetWidget::raiseAll() {
  const auto sheets = parentWidget()->findChildren<SheetWidget*>(Qt::FindDirectChildrenOnly);
  for (SheetWidget* sheet : sheets) {
    if (sheet->isPresented()) sheet->raise();
  }
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
