#include "qt/quick/SheetItem.h"

#include <QCursor>
#include <QQuickWindow>
#include <QSGRendererInterface>
#include <algorithm>

#include "qt/Conversions.h"
#include "qt/WebComponent.h"
#include "qt/WindowScene.h"
#include "qt/accessibility/AccessibilityBridge.h"
#include "qt/accessibility/ViewAccessible.h"

namespace quorix::qt {
namespace {

/// Above what pages stack. Below the pop-ups of Qt Quick Controls, which a host may open over a
/// sheet.
constexpr double kStacking = 1'000'000;

/// Also above `opener`, which may be in such a pop-up, and above every other sheet.
double stackingOver(const QQuickWindow& window, const QQuickItem* opener) {
  double z = kStacking;
  for (const QQuickItem* item : window.contentItem()->childItems()) {
    if (qobject_cast<const SheetItem*>(item)) z = std::max(z, item->z());
    const bool holds = opener && (item == opener || item->isAncestorOf(opener));
    if (holds) z = std::max(z, item->z() + 1);
  }
  return z;
}

}  // namespace

SheetItem::SheetItem(QQuickWindow& window, hosting::WindowSession& session, QQuickItem* opener)
    : QQuickItem(window.contentItem()),
      SheetSurface(static_cast<QObject&>(*this), session, QStringLiteral("QuorixWebQuick")),
      QuickAccessibleSurface(static_cast<QQuickItem&>(*this)),
      layers_(*this) {
  setFlag(ItemHasContents);
  setFlag(ItemIsFocusScope);
  setZ(stackingOver(window, opener));
  setAcceptedMouseButtons(Qt::AllButtons);
  setAcceptTouchEvents(true);
  setAcceptHoverEvents(true);
  setCursor(Qt::ArrowCursor);  // instead of the cursor of what lies below
  AccessibilityBridge* accessibility = AccessibilityBridge::instance();
  accessibility->add(*this, *this);
  connect(accessibility, &AccessibilityBridge::began, this, [this] {
    offer();
    ViewAccessible::focusChanged(*this, Qt::QueuedConnection);
  });
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
        if (inSceneGraph_) wasShown();
      },
      Qt::QueuedConnection);
  // Qt waits some milliseconds before it begins a frame: uses them to prepare the first one.
  QMetaObject::invokeMethod(
      this,
      [this, opener = QPointer(opener)] {
        if (opener) opener->ensurePolished();
        ensurePolished();
      },
      Qt::QueuedConnection);
}

SheetItem::~SheetItem() { AccessibilityBridge::remove(*this); }

const SheetItem* SheetItem::topmost(const QQuickWindow& window) {
  const WindowScene* scene = WindowScene::find(window);
  return scene ? static_cast<const SheetItem*>(scene->topmost()) : nullptr;
}

double SheetItem::scale() const { return window() ? window()->effectiveDevicePixelRatio() : 1; }

void SheetItem::comeUp() {
  if (z() > kStacking) window()->installEventFilter(this);
  offer();
}

SheetItem::FocusReturn SheetItem::focusReturn() {
  return [this, before = QPointer(window()->activeFocusItem())] {
    const bool there =
        before && before->window() == window() && before->isVisible() && before->isEnabled();
    if (there) before->forceActiveFocus(Qt::PopupFocusReason);
    return there;
  };
}

void SheetItem::takeFocus() { forceActiveFocus(Qt::PopupFocusReason); }

bool SheetItem::holdsFocus() const {
  // A window that is being deleted removes its items from the top down, and has no focus then.
  const bool inWindow = window() && parentItem() && parentItem()->window();
  return inWindow && hasActiveFocus();
}

/// An item above the sheet, such as a pop-up, keeps the focus.
void SheetItem::holdFocus() {
  if (window() && liesOver(window()->activeFocusItem())) focusWentBelow();
}

void SheetItem::vanish() {
  setVisible(false);
  deleteLater();  // it may be handling an event
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
  windowResized({now.width(), now.height()});
}

// Frame.

void SheetItem::updatePolish() {
  if (!isOpen()) return;
  if (const auto layers = paintLayers(); !layers.empty()) layers_.setPictures(layers);
  if (!followMotion()) return;
  panel_ = toRect(presenter().panelFrame());
  shade_ = toQColor(presenter().shade());
  panelColor_ = toQColor(presenter().panelColor());
  layers_.moveTo(panel_.topLeft());
  hiddenTop_ = 0;
  followPages();
  layers_.hideTop(hiddenTop_);
  layers_.showRing(ring());
  update();
}

QSGNode* SheetItem::updatePaintNode(QSGNode* old, UpdatePaintNodeData*) {
  auto* node = static_cast<SheetNode*>(old);
  if (!node) node = new SheetNode(*window());
  inSceneGraph_ = true;
  node->setShade(boundingRect(), shade_);
  QRectF below = panel_;
  below.setTop(std::min(panel_.top() + layers_.panelHeight(), height()));
  node->setBelow(below, panelColor_);
  return node;
}

// Pages.

bool SheetItem::clipsPages() const {
  const auto api = window()->rendererInterface()->graphicsApi();
  return QSGRendererInterface::isApiRhiBased(api) && api != QSGRendererInterface::Null;
}

void SheetItem::placePage(hosting::PageEngine& engine, const hosting::PagePlace& place, int index) {
  auto* page = qobject_cast<QQuickItem*>(viewOf(engine));
  if (!page) return;
  connect(page, &QQuickItem::activeFocusChanged, this, &SheetItem::pageFocusChanged,
          Qt::UniqueConnection);
  const QRectF frame = toRect(place.room).adjusted(0, -place.strip, 0, 0);
  layers_.place(*page, frame, place.strip, index);
  static_cast<WebPage&>(engine).roundTop({place.strip, place.radius, scale()});
  if (place.isAtTop) hiddenTop_ = place.strip;
}

void SheetItem::pageFocusChanged(bool focused) {
  if (focused) pageTookFocus();
}

void SheetItem::focusPage(hosting::PageEngine& engine, bool forward) {
  if (auto* page = qobject_cast<QQuickItem*>(viewOf(engine))) {
    page->forceActiveFocus(forward ? Qt::TabFocusReason : Qt::BacktabFocusReason);
  }
}

void SheetItem::takeFocusFromPages() {
  if (QQuickItem* inside = scopedFocusItem()) inside->setFocus(false);
}

// Input.

Qt::CursorShape SheetItem::cursorAt(QPointF point) {
  return takesTapAt(toPoint(point)) ? Qt::PointingHandCursor : Qt::ArrowCursor;
}

void SheetItem::hoverMoveEvent(QHoverEvent* event) { setCursor(cursorAt(event->position())); }

/// A modal pop-up of Qt Quick Controls blocks the wheel for everything outside it, also for a page
/// in a sheet above it. Gives the wheel to the window before the pop-up's filter.
bool SheetItem::eventFilter(QObject* watched, QEvent* event) {
  const bool wheel = watched == window() && event->type() == QEvent::Wheel;
  if (!wheel || !isTopmost()) return false;
  watched->event(event);
  return true;
}

bool SheetItem::event(QEvent* event) { return handle(*event) || QQuickItem::event(event); }
}  // namespace quorix::qt
