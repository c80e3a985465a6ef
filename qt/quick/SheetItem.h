#pragma once

#include <QColor>
#include <QPointer>
#include <QQuickItem>

#include "qt/SheetSurface.h"
#include "qt/quick/QuickAccessibleSurface.h"
#include "qt/quick/SheetLayers.h"

namespace quorix::qt {

/// A sheet over a Qt Quick window. It is as large as the window, and above the item that opened it
/// and everything which holds that item. A child of the window's content; deletes itself after it
/// closed. Main thread.
class SheetItem : public QQuickItem, public SheetSurface, public QuickAccessibleSurface {
  Q_OBJECT

 public:
  /// `opener` may be null.
  SheetItem(QQuickWindow& window, hosting::WindowSession& session, QQuickItem* opener);
  ~SheetItem() override;

  /// The sheet of `window` that takes the input, or null.
  static const SheetItem* topmost(const QQuickWindow& window);
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
  friend class SheetFront;
  friend class SheetLayers;

  double scale() const override;
  void needsFrame() override { polish(); }
  void comeUp() override;
  FocusReturn focusReturn() override;
  void takeFocus() override;
  bool hasFocus() const override { return hasActiveFocus(); }
  bool holdsFocus() const override;
  void dropFocus() override { setFocus(false, Qt::PopupFocusReason); }
  void vanish() override;
  void holdFocus();

  bool clipsPages() const override;
  void placePage(hosting::PageEngine& engine, const hosting::PagePlace& place, int index) override;
  void focusPage(hosting::PageEngine& engine, bool forward) override;
  void takeFocusFromPages() override;
  void pageFocusChanged(bool focused);

  hosting::Responder& responder() override { return *this; }
  std::vector<QObject*> accessibleViews() const override { return pageViews(); }
  bool isShown() const override { return !isClosed() && QuickAccessibleSurface::isShown(); }
  bool isDialog() const override { return true; }

  Qt::CursorShape cursorAt(QPointF point);

  // What the scene graph shows next.
  QRectF panel_;
  double hiddenTop_ = 0;  ///< points at the top of the panel that a page covers
  QColor shade_;
  QColor panelColor_;
  bool inSceneGraph_ = false;

  SheetLayers layers_;  ///< above what the item itself paints
};

}  // namespace quorix::qt
