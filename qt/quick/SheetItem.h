#pragma once

#include <QQuickItem>

#include "qt/SheetSurface.h"
#include "qt/quick/QuickAccessibleSurface.h"

namespace quorix::qt {

class FocusStop;
class SheetFront;

/// A sheet over a Qt Quick window. It is as large as the window, and above the item that opened it
/// and everything which holds that item. A child of the window's content; deletes itself after it
/// closed. Main thread.
class SheetItem : public QQuickItem, public SheetSurface, public QuickAccessibleSurface {
  Q_OBJECT

 public:
  /// `opener` may be null.
  SheetItem(QQuickWindow& window, hosting::WindowSession& session, QQuickItem* opener);

  /// Whether `item` of the same window is below the sheet, unlike a pop-up that opened later.
  bool liesOver(const QQuickItem* item) const;

 protected:
  bool event(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void itemChange(ItemChange change, const ItemChangeData& data) override;
  void geometryChange(const QRectF& now, const QRectF& before) override;
  void updatePolish() override;
  QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData* data) override;

  void mouseUngrabEvent() override { pointerLost(); }
  void touchUngrabEvent() override { pointerLost(); }
  void hoverMoveEvent(QHoverEvent* event) override;

 private:
  double scale() const override;
  void needsFrame() override { polish(); }
  void comeUp() override;
  FocusReturn focusReturn() override;
  void takeFocus() override;
  bool hasFocus() const override { return hasActiveFocus(); }
  bool holdsFocus() const override;
  void dropFocus() override { setFocus(false, Qt::PopupFocusReason); }
  void holdFocus();

  std::unique_ptr<SheetPicture> newPicture(int index) override;
  bool clipsPages() const override;
  void placePage(hosting::PageEngine& engine, const hosting::PagePlace& place, int index) override;
  void focusPage(hosting::PageEngine& engine, bool forward) override;
  void takeFocusFromPages() override;
  void pageFocusChanged(bool focused);

  std::vector<QObject*> accessibleViews() const override { return pageViews(); }
  bool isShown() const override { return !isClosed() && QuickAccessibleSurface::isShown(); }
  bool isDialog() const override { return true; }

  void accessibilityBegan() override;

  bool inSceneGraph_ = false;
  double coveredTop_ = 0;  ///< points at the top of the panel that a page covers
  // Made with the first page.
  SheetFront* front_ = nullptr;
  FocusStop* before_ = nullptr;
  FocusStop* after_ = nullptr;
};

}  // namespace quorix::qt
