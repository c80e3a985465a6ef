#include "qt/quick/SheetItem.h"

#include <QCursor>
#include <QPointer>
#include <QQuickWindow>
#include <QSGRectangleNode>
#include <QSGRendererInterface>
#include <algorithm>
#include <functional>
#include <utility>

#include "qt/Conversions.h"
#include "qt/HostedSheet.h"
#include "qt/HostedWindow.h"
#include "qt/WebComponent.h"
#include "qt/quick/PictureItem.h"
#include "qt/quick/QuickAccessibleSurface.h"

namespace quorix::qt {
namespace {

/// Stands before or after the pages in the focus chain, and calls `passed` when the keyboard's
/// focus reaches it.
class FocusStop : public QQuickItem {
 public:
  FocusStop(QQuickItem& parent, std::function<void()> passed)
      : QQuickItem(&parent), passed_(std::move(passed)) {
    setActiveFocusOnTab(true);
  }

 protected:
  // Does not call QQuickItem's, which would tell assistive technology of a focus on the sheet.
  void focusInEvent(QFocusEvent*) override {
    // On a later turn: the focus is still moving.
    QMetaObject::invokeMethod(this, passed_, Qt::QueuedConnection);
  }

 private:
  std::function<void()> passed_;
};

/// Passes its events to a sheet.
class SheetArea : public QQuickItem {
 public:
  SheetArea(QQuickItem& parent, HostedSheet& sheet) : QQuickItem(&parent), sheet_(sheet) {
    setAcceptedMouseButtons(Qt::AllButtons);
    setAcceptTouchEvents(true);
    setAcceptHoverEvents(true);
    setCursor(Qt::ArrowCursor);  // instead of the cursor of what lies below
  }

 protected:
  bool event(QEvent* event) override { return sheet_.handle(*event) || QQuickItem::event(event); }
  void hoverEnterEvent(QHoverEvent* event) override { hoverMoveEvent(event); }
  void hoverMoveEvent(QHoverEvent* event) override {
    setCursor(sheet_.cursorAt(event->position()));
  }
  void mouseUngrabEvent() override { sheet_.pointerLost(); }
  void touchUngrabEvent() override { sheet_.pointerLost(); }

  HostedSheet& sheet_;
};

/// Takes taps over the pages of a sheet. It is as large as the sheet, but contains only the points
/// where something acts, and the strip beside the rounded corners.
class SheetFront : public SheetArea {
 public:
  using SheetArea::SheetArea;
  /// Where a page is visible but takes no input.
  void setStrip(const QRectF& strip) { strip_ = strip; }
  bool contains(const QPointF& point) const override {
    return strip_.contains(point) || sheet_.takesTapAt(toPoint(point));
  }

 private:
  QRectF strip_;
};

}  // namespace

/// A child of the window's content; deletes itself after it closed.
class SheetItem final : public SheetArea, public HostedSheet, public QuickAccessibleSurface {
  Q_OBJECT

 public:
  SheetItem(QQuickWindow& window, hosting::WindowSession& session, QQuickItem* opener)
      : SheetArea(*window.contentItem(), *this),
        HostedSheet(static_cast<QObject&>(*this), session, QStringLiteral("QuorixWebQuick")),
        QuickAccessibleSurface(static_cast<QQuickItem&>(*this), *this) {
    setFlag(ItemHasContents);
    setFlag(ItemIsFocusScope);
    setZ(stackingOver(window, opener));
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
    later([this, opener = QPointer(opener)] {
      if (opener) opener->ensurePolished();
      ensurePolished();
    });
  }

  ~SheetItem() override { dropChildren(); }

 protected:
  /// A modal pop-up of Qt Quick Controls blocks the wheel for everything outside it, also for a
  /// page in a sheet above it. Gives the wheel to the window before the pop-up's filter.
  bool eventFilter(QObject* watched, QEvent* event) override {
    const bool wheel = watched == window() && event->type() == QEvent::Wheel;
    if (!wheel || !isTopmost()) return false;
    watched->event(event);
    return true;
  }

  void itemChange(ItemChange change, const ItemChangeData& data) override {
    QQuickItem::itemChange(change, data);
    if (change == ItemDevicePixelRatioHasChanged) followScale();
  }

  void geometryChange(const QRectF& now, const QRectF& before) override {
    QQuickItem::geometryChange(now, before);
    windowResized({now.width(), now.height()});
  }

  void updatePolish() override {
    if (followFrame()) update();
  }

  QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData*) override {
    inSceneGraph_ = true;
    if (!old) {
      old = new QSGTransformNode;
      old->appendChildNode(window()->createRectangleNode());
      old->appendChildNode(window()->createRectangleNode());
    }
    const hosting::SheetPictures::Ground& ground = pictures().ground();
    auto* shade = static_cast<QSGRectangleNode*>(old->firstChild());
    // A transparent shade is not drawn, which saves blending the whole window.
    shade->setRect(ground.shade.alpha > 0 ? boundingRect() : QRectF());
    shade->setColor(toQColor(ground.shade));
    auto* below = static_cast<QSGRectangleNode*>(old->lastChild());
    below->setRect(toRect(ground.below));
    below->setColor(toQColor(ground.color));
    return old;
  }

 private:
  /// Above what pages stack. Below the pop-ups of Qt Quick Controls, which a host may open over a
  /// sheet.
  static constexpr double kStacking = 1'000'000;

  /// Also above `opener`, which may be in such a pop-up, and above every other sheet.
  static double stackingOver(const QQuickWindow& window, const QQuickItem* opener) {
    double z = kStacking;
    for (const QQuickItem* item : window.contentItem()->childItems()) {
      if (qobject_cast<const SheetItem*>(item)) z = std::max(z, item->z());
      const bool holds = opener && (item == opener || item->isAncestorOf(opener));
      if (holds) z = std::max(z, item->z() + 1);
    }
    return z;
  }

  double scale() const override { return window() ? window()->effectiveDevicePixelRatio() : 1; }
  void needsFrame() override { polish(); }
  std::unique_ptr<hosting::ScenePicture> newPicture(int index) override {
    auto item = std::make_unique<PictureItem>(*this, [this] { paintAgain(); });
    item->setZ(2 * index);  // the pages are between them
    return item;
  }

  void comeUp() override {
    if (z() > kStacking) window()->installEventFilter(this);
    offer();
  }

  // Focus.

  FocusReturn focusReturn() override {
    return [this, before = QPointer(window()->activeFocusItem())] {
      const bool there =
          before && before->window() == window() && before->isVisible() && before->isEnabled();
      if (there) before->forceActiveFocus(Qt::PopupFocusReason);
      return there;
    };
  }

  void takeFocus() override { forceActiveFocus(Qt::PopupFocusReason); }
  bool hasFocus() const override { return hasActiveFocus(); }
  void dropFocus() override { setFocus(false, Qt::PopupFocusReason); }

  bool holdsFocus() const override {
    // A window that is being deleted removes its items from the top down, and has no focus then.
    const bool inWindow = window() && parentItem() && parentItem()->window();
    return inWindow && hasActiveFocus();
  }

  /// An item above the sheet, such as a pop-up, keeps the focus.
  void holdFocus() {
    if (window() && liesOver(*this, window()->activeFocusItem())) focusWentBelow();
  }

  // Pages.

  bool clipsPages() const override {
    const auto api = window()->rendererInterface()->graphicsApi();
    return QSGRendererInterface::isApiRhiBased(api) && api != QSGRendererInterface::Null;
  }

  void placePage(hosting::PageEngine& engine, const hosting::PagePlace& place, int index) override {
    auto& page = static_cast<QQuickItem&>(viewOf(engine));
    connect(&page, &QQuickItem::activeFocusChanged, this, &SheetItem::pageFocusChanged,
            Qt::UniqueConnection);
    if (!front_) {
      front_ = new SheetFront(*this, *this);
      front_->setZ(1000);
      before_ = new FocusStop(*this, [this] { leavePages(false); });
      after_ = new FocusStop(*this, [this] { leavePages(true); });
    }
    const QRectF frame = toRect(place.room).adjusted(0, -place.strip, 0, 0);
    const QRectF strip(frame.topLeft(), QSizeF(frame.width(), place.strip));
    front_->setSize(size());
    if (place.strip > 0 || index == 0) front_->setStrip(strip);
    const auto chain = childItems();
    if (chain.constFirst() != before_) before_->stackBefore(chain.constFirst());
    if (chain.constLast() != after_) after_->stackAfter(chain.constLast());
    page.setZ(2 * index + 1);
    page.setPosition(frame.topLeft());
    page.setSize(frame.size());
    static_cast<WebPage&>(engine).roundTop({place.strip, place.radius, scale()});
  }

  void pageFocusChanged(bool focused) {
    if (focused) pageTookFocus();
  }

  void focusPage(hosting::PageEngine& engine, bool forward) override {
    static_cast<QQuickItem&>(viewOf(engine))
        .forceActiveFocus(forward ? Qt::TabFocusReason : Qt::BacktabFocusReason);
  }

  void takeFocusFromPages() override {
    if (QQuickItem* inside = scopedFocusItem()) inside->setFocus(false);
  }

  // Accessibility.

  std::vector<QObject*> accessibleViews() const override { return pageViews(); }
  bool isShown() const override { return !isClosed() && QuickAccessibleSurface::isShown(); }
  bool isDialog() const override { return true; }
  void sceneChanged() override { tellScene(); }
  void focusMoved(bool later) override { tellFocus(later); }
  void coverChanged() override { tellCover(); }
  void accessibilityBegan() override {
    offer();
    tellFocus(true);
  }

  bool inSceneGraph_ = false;
  // Made with the first page.
  SheetFront* front_ = nullptr;
  FocusStop* before_ = nullptr;
  FocusStop* after_ = nullptr;
};

hosting::WindowSession& sessionOf(QQuickWindow& window) {
  const auto newSheet = [&window](HostedWindow & session,
                                  const hosting::Responder* opener) -> auto& {
    return *new SheetItem(window, session, QuickAccessibleSurface::itemOf(opener));
  };
  return HostedWindow::of(window, {[&window] { return &window; }, newSheet});
}

}  // namespace quorix::qt

#include "SheetItem.moc"
