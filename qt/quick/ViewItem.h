#pragma once

#include <QQuickItem>
#include <memory>

#include "platform/foundation/Export.h"
#include "platform/swiftui/View.h"
#include "qt/SheetCloseReason.h"
#include "qt/ViewSettings.h"

namespace quorix::qt {

class ItemSurface;

/// Shows a view in a Qt Quick window. A size in points is a size in items' units.
///
/// Its implicit size is the view's ideal size. Once the item has a width, the implicit height is
/// what the view needs at that width: layouts, positioners and anchors place the item like a text.
/// It is painted only where it is visible and only when something changed. Sheets of the view open
/// over the item's window. Main thread.
///
///     #include <QuorixWidgets/score/ScoreWidgetBuilder.h>
///     auto view = quorix::ScoreWidgetBuilder::buildSwiftUIScoreWidgetView(
///         "my-shop", "en", shopperToken, {std::nullopt, std::nullopt});
///     auto* row = new quorix::qt::ViewItem(view, productPage);
///     row->setWidth(productPage->width());
class QUORIX_EXPORT ViewItem : public QQuickItem, public ViewSettings {
  Q_OBJECT

 public:
  explicit ViewItem(QQuickItem* parent = nullptr);
  explicit ViewItem(swiftui::View view, QQuickItem* parent = nullptr);
  ~ViewItem() override;

  /// Shows another view, with new state. Closes a sheet of the former view.
  void setView(swiftui::View view);

  /// True also beside a row that is smaller than a finger needs, in an area of up to 44 points,
  /// where nothing else takes the tap.
  bool contains(const QPointF& point) const override;

 signals:
  // What the user did, for analytics. A slot may delete the item, except where noted.

  /// A row or a link of the view was tapped, by pointer, key or assistive technology.
  void activated();
  /// A sheet of the view opened, also one with a web page.
  void sheetOpened();
  /// It closed: emitted once for each `sheetOpened`. If the item is deleted while its sheet is
  /// open, its destructor emits this with `Host`, so a slot deletes it only for another reason.
  void sheetClosed(quorix::qt::SheetCloseReason reason);

 protected:
  bool event(QEvent* event) override;
  void itemChange(ItemChange change, const ItemChangeData& data) override;
  void geometryChange(const QRectF& now, const QRectF& before) override;
  void updatePolish() override;
  QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData* data) override;

  void mouseUngrabEvent() override;
  void touchUngrabEvent() override;
  void hoverEnterEvent(QHoverEvent* event) override;
  void hoverMoveEvent(QHoverEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  friend class ItemSurface;
  friend struct TapRoom;
  void settingsChanged() override;

  std::unique_ptr<ItemSurface> surface_;
};

}  // namespace quorix::qt
