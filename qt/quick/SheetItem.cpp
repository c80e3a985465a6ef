#include "qt/quick/SheetItem.h"

#include <QCursor>
#include <QQuickWindow>
#include <algorithm>

#include "qt/AccessibilityBridge.h"
#include "qt/FocusRing.h"
#include "qt/Picture.h"
#include "qt/QtColor.h"
#include "qt/ViewAccessible.h"
#include "qt/quick/PictureNode.h"
#include "qt/quick/SheetNode.h"

namespace quorix::qt {
namespace {

/// Above what pages stack, below the pop-ups of the Controls, which may be asked for over a sheet.
constexpr double kStacking = 1'000'000;

/// Above `opener` too, which may be in one of these pop-ups, and above every other sheet.
double stackingOver(const QQuickWindow& window, const QQuickItem* opener) {
  double z = kStacking;
  for (const QQuickItem* item : window.contentItem()->childItems()) {
    if (qobject_cast<const SheetItem*>(item)) z = std::max(z, item->z());
    const bool holds = opener && (item == opener || item->isAncestorOf(opener));
    if (holds) z = std::max(z, item->z() + 1);
  }
  return z;
}

QRectF toRect(const layout::Rect& rect) {
  return {rect.left(), rect.top(), rect.size.width, rect.size.height};
}

}  // namespace

SheetItem::SheetItem(QQuickWindow& window, const QQuickItem* opener)
    : QQuickItem(window.contentItem()),
      SheetSurface(static_cast<QObject&>(*this), QStringLiteral("QuorixWebQuick")),
      QuickAccessibleSurface(static_cast<QQuickItem&>(*this)),
      layers_(*this) {
  setFlag(ItemHasContents);
  setFlag(ItemIsFocusScope);
  setZ(stackingOver(window, opener));
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
  // On a later turn: the focus is still moving.
  connect(&window, &QQuickWindow::activeFocusItemChanged, this, &SheetItem::holdFocus,
          Qt::QueuedConnection);
  // On a later turn: rendering may be on another thread, and may hold this one.
  connect(
      &window, &QQuickWindow::frameSwapped, this,
      [this] {
        if (paintedRevision_) wasShown();
      },
      Qt::QueuedConnection);
}

SheetItem::~SheetItem() { AccessibilityBridge::remove(*this); }

const SheetItem* SheetItem::topmost(const QQuickWindow& window) {
  const SheetItem* found = nullptr;
  for (QQuickItem* child : window.contentItem()->childItems()) {
    const auto* sheet = qobject_cast<SheetItem*>(child);
    if (sheet && !sheet->isClosed()) found = sheet;
  }
  return found;
}

double SheetItem::scale() const { return window() ? window()->effectiveDevicePixelRatio() : 1; }

void SheetItem::takeFocusOver() {
  focusBefore_ = window()->activeFocusItem();
  if (z() > kStacking) window()->installEventFilter(this);
  forceActiveFocus(Qt::PopupFocusReason);
  offer();
}

SheetSurface* SheetItem::makeSheetAbove() {
  return window() ? new SheetItem(*window(), this) : nullptr;
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

/// The host may have led it to what lies below. What lies above, such as a pop-up, keeps it.
void SheetItem::holdFocus() {
  if (isClosed() || !isPresented() || !window() || topmost(*window()) != this) return;
  if (liesOver(window()->activeFocusItem())) forceActiveFocus(Qt::PopupFocusReason);
}

bool SheetItem::liesOver(const QQuickItem* item) const {
  while (item && item->parentItem() != parentItem()) item = item->parentItem();
  return item && item != this && item->z() <= z();
}

void SheetItem::itemChange(ItemChange change, const ItemChangeData& data) {
  QQuickItem::itemChange(change, data);
  if (change == ItemDevicePixelRatioHasChanged) followScale();
}

void SheetItem::geometryChange(const QRectF& now, const QRectF& before) {
  QQuickItem::geometryChange(now, before);
  presenter().setWindow({now.width(), now.height()}, {});
}

// Frame.

void SheetItem::updatePolish() {
  if (isClosed() || !isPresented()) return;
  updatePictures();
  followMotion();
  if (isClosed()) return;
  panel_ = toRect(presenter().panelFrame());
  shade_ = toQColor(presenter().shade());
  panelColor_ = toQColor(presenter().panelColor());
  layers_.moveTo(panel_.topLeft());
  followPages();
  updateRing();
  update();
}

void SheetItem::updatePictures() {
  const unsigned revision = presenter().panelRevision();
  const render::Scene& panel = presenter().panel();
  pictureHeight_ = panel.size.height;
  if (revision == paintedRevision_ && paintedScale_ == scale()) return;
  const auto layers = hosting::layersOf(panel, scale());
  panelPicture_ = paintPicture(layers.front().scene, scale(), {0, 0, 0, 0});
  layers_.setPictures(layers, scale());
  paintedRevision_ = revision;
  paintedScale_ = scale();
  ringSize_.reset();
  ViewAccessible::sceneChanged(*this);
}

void SheetItem::updateRing() {
  const auto frame = hasActiveFocus() ? presenter().ringFrame() : std::nullopt;
  if (!frame) return layers_.hideRing();
  QImage picture;
  if (ringSize_ != frame->size) {
    picture = FocusRing::picture(*frame, presenter().panel().appearance, scale());
    ringSize_ = frame->size;
  }
  layers_.showRing(FocusRing::frameAround(*frame).topLeft(), picture);
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
  return node;
}

// Pages.

void SheetItem::placePage(QObject& view, const layout::Rect& frame, int index) {
  auto* page = qobject_cast<QQuickItem*>(&view);
  if (!page) return;
  connect(page, &QQuickItem::activeFocusChanged, this, &SheetItem::pageFocusChanged,
          Qt::UniqueConnection);
  layers_.place(*page, toRect(frame), index);
}

void SheetItem::pageFocusChanged(bool focused) {
  if (focused) pageTookFocus();
}

void SheetItem::focusPage(QObject& view, bool forward) {
  if (auto* page = qobject_cast<QQuickItem*>(&view)) {
    page->forceActiveFocus(forward ? Qt::TabFocusReason : Qt::BacktabFocusReason);
  }
}

void SheetItem::takeFocusFromPages() {
  if (QQuickItem* inside = scopedFocusItem()) inside->setFocus(false);
}

// Input.

void SheetItem::hoverMoveEvent(QHoverEvent* event) {
  const auto shape = takesTapAt(event->position()) ? Qt::PointingHandCursor : Qt::ArrowCursor;
  if (cursor().shape() != shape) setCursor(shape);
}

/// A modal pop-up of the Controls keeps the wheel from all that is not in it, also from a page in
/// this sheet above it: the window gets the wheel first.
bool SheetItem::eventFilter(QObject* watched, QEvent* event) {
  const bool wheel = watched == window() && event->type() == QEvent::Wheel;
  if (!wheel || isClosed() || topmost(*window()) != this) return false;
  watched->event(event);
  return true;
}

bool SheetItem::event(QEvent* event) { return handle(*event) || QQuickItem::event(event); }

// Accessibility.

const std::vector<render::AccessibilityElement>& SheetItem::accessibilityElements() {
  return presenter().scene().accessibility;
}

std::optional<layout::Rect> SheetItem::focusedFrame() const {
  return hasActiveFocus() ? presenter().focusFrame() : std::nullopt;
}

}  // namespace quorix::qt
