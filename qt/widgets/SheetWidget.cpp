#include "qt/widgets/SheetWidget.h"

#include <QApplication>
#include <QHoverEvent>
#include <QPainter>
#include <algorithm>
#include <utility>

#include "qt/Conversions.h"
#include "qt/WindowScene.h"
#include "qt/accessibility/AccessibilityBridge.h"

namespace quorix::qt {

SheetWidget::SheetWidget(QWidget& window, hosting::WindowSession& session)
    : QWidget(&window),
      SheetSurface(static_cast<QObject&>(*this), session, QStringLiteral("QuorixWebWidgets")),
      WidgetAccessibleSurface(static_cast<QWidget&>(*this)) {
  setAttribute(Qt::WA_AcceptTouchEvents);
  setAttribute(Qt::WA_Hover);
  setFocusPolicy(Qt::StrongFocus);
  setCursor(Qt::ArrowCursor);  // instead of the window's
  hide();                      // until `comeUp`
  AccessibilityBridge::instance()->add(*this, *this);
  window.installEventFilter(this);
  connect(qApp, &QApplication::focusChanged, this,
          [this](QWidget*, QWidget* now) { holdFocus(now); });
  setGeometry(window.rect());
  followSize();
}

SheetWidget::~SheetWidget() { AccessibilityBridge::remove(*this); }

const SheetWidget* SheetWidget::topmost(const QWidget& window) {
  const WindowScene* scene = WindowScene::find(window);
  return scene ? static_cast<const SheetWidget*>(scene->topmost()) : nullptr;
}

// Focus.

void SheetWidget::comeUp() {
  show();
  raise();
}

SheetWidget::FocusReturn SheetWidget::focusReturn() {
  return [this, before = QPointer(window()->focusWidget())] {
    const bool there =
        before && before->window() == window() && before->isVisible() && before->isEnabled();
    if (there) before->setFocus(Qt::PopupFocusReason);
    return there;
  };
}

void SheetWidget::vanish() {
  hide();
  deleteLater();  // it may be handling an event
}

void SheetWidget::holdFocus(QWidget* now) {
  if (now && hasPageFocus()) pageTookFocus();
  // A shortcut of the host may have moved the focus below the sheet.
  const bool below = now && now != this && now->window() == window() && !isAncestorOf(now);
  if (below) focusWentBelow();
}

bool SheetWidget::focusNextPrevChild(bool next) {
  if (isClosed()) return QWidget::focusNextPrevChild(next);
  if (!hasPageFocus()) {
    walk(next);
  } else if (window()->focusWidget()->isVisible()) {
    leavePages(next);
  } else {
    takeFocusFromPages();  // not the user's key: Qt hides a page whose process ended
  }
  return true;
}

// Frame.

void SheetWidget::needsFrame() {
  if (std::exchange(settleQueued_, true)) return;
  QMetaObject::invokeMethod(
      this, [this] { settleQueued_ = false, settle(); }, Qt::QueuedConnection);
}

void SheetWidget::settle() {
  if (!isOpen()) return;
  updateLayers();
  if (!followMotion()) return;
  stack_.clear();
  followPages();
  updateFront();
  updateRing();
  update();
}

/// Paints the panel anew if needed. Also called from a paint event that comes before `settle`,
/// where the layers must not change.
void SheetWidget::updatePanel() {
  auto layers = paintLayers();
  if (layers.empty()) return;
  picture_ = layers.front().picture;
  repainted_ = std::move(layers);
}

void SheetWidget::updateLayers() {
  updatePanel();
  if (repainted_.empty()) return;
  while (layers_.size() + 1 > repainted_.size()) {
    delete layers_.back().picture;
    layers_.pop_back();
  }
  for (std::size_t i = 1; i < repainted_.size(); ++i) {
    if (layers_.size() < i) layers_.push_back({new PictureWidget(*this), {}});
    layers_[i - 1].origin = repainted_[i].origin;
    layers_[i - 1].picture->setPicture(repainted_[i].picture);
  }
  repainted_.clear();
}

/// Places what is above the pages. Without a page these are pictures on the panel.
void SheetWidget::updateFront() {
  const layout::Point corner = presenter().panelFrame().origin;
  for (const ShownLayer& layer : layers_) {
    layer.picture->move((toPoint(corner) + layer.origin).toPoint());
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
  const auto around = ring();
  if (!ring_ && around) ring_ = new PictureWidget(*this);
  if (!ring_) return;
  if (around && !around->picture.isNull()) ring_->setPicture(around->picture);
  ring_->setVisible(around.has_value());
  if (!around) return;
  ring_->move(around->origin.toPoint());
  if (children().constLast() != ring_) ring_->raise();
}

void SheetWidget::paintEvent(QPaintEvent*) {
  if (!isOpen()) return;
  updatePanel();
  const layout::Rect frame = presenter().panelFrame();
  const double bottom = frame.top() + picture_.deviceIndependentSize().height();
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

std::unique_ptr<hosting::PageEngine> SheetWidget::openPage(const render::EmbedItem& embed,
                                                           hosting::PageEngine::Client& client) {
  activeBefore_ = isActiveWindow() ? window()->internalWinId() : 0;
  return SheetSurface::openPage(embed, client);
}

void SheetWidget::placePage(hosting::PageEngine& engine, const hosting::PagePlace& place,
                            int index) {
  auto* page = qobject_cast<QWidget*>(viewOf(engine));
  if (!page) return;
  page->setGeometry(toRect(place.room).toAlignedRect());
  page->show();
  // For the first widget that is drawn by other means than the rest, Qt makes the native window
  // anew, which is then not active.
  const WId before = std::exchange(activeBefore_, 0);
  if (before && window()->internalWinId() != before) activateWindow();
  stack_.append(page);
  if (std::size_t(index) < layers_.size()) stack_.append(layers_[std::size_t(index)].picture);
}

void SheetWidget::focusPage(hosting::PageEngine& engine, bool forward) {
  if (auto* page = qobject_cast<QWidget*>(viewOf(engine))) {
    page->setFocus(forward ? Qt::TabFocusReason : Qt::BacktabFocusReason);
  }
}

bool SheetWidget::hasPageFocus() const {
  const QWidget* focused = window()->focusWidget();
  return focused && focused != this && isAncestorOf(focused);
}

void SheetWidget::takeFocusFromPages() {
  // If a page's process ended, the window may have no focused widget.
  if (hasPageFocus() || !window()->focusWidget()) setFocus(Qt::OtherFocusReason);
}

void SheetWidget::resizeEvent(QResizeEvent*) { followSize(); }

void SheetWidget::followSize() { windowResized({double(width()), double(height())}); }

// Events. None of them reaches what is below the sheet.

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
    if (event->type() == QEvent::ChildAdded && isTopmost()) raiseAll();
  }
  return QWidget::eventFilter(watched, event);
}

/// Raises the window's sheets, in their order, above widgets that were added later.
void SheetWidget::raiseAll() {
  const auto sheets = parentWidget()->findChildren<SheetWidget*>(Qt::FindDirectChildrenOnly);
  for (SheetWidget* sheet : sheets) {
    if (sheet->isOpen()) sheet->raise();
  }
}

void SheetWidget::pointAt(QPointF point) {
  const auto shape = takesTapAt(toPoint(point)) ? Qt::PointingHandCursor : Qt::ArrowCursor;
  if (cursor().shape() != shape) setCursor(shape);
}
}  // namespace quorix::qt
