#pragma once

#include <QQuickItem>
#include <memory>

#include "platform/foundation/Export.h"
#include "platform/swiftui/View.h"
#include "qt/SheetCloseReason.h"
#include "qt/ViewSettings.h"

namespace quorix::qt {

class ViewSurface;

/// Shows a view in a Qt Quick window. A size in points is a size in items' units.
///
/// Its implicit size is what the view wants: the ideal size, and once it was given a width the
/// height that the view needs at that width, so that layouts, positioners and anchors place it like
/// a text. It is painted only where it can be seen and only when something changed. Sheets of the
/// view open over the window that the item is in. Main thread.
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

  /// Shows another view, which begins afresh; a sheet of the one before goes.
  void setView(swiftui::View view);

  /// Also around a row that is smaller than a finger needs, up to 44 points, where nothing else
  /// takes the tap.
  bool contains(const QPointF& point) const override;

 signals:
  // What the user did, for analytics. A slot may delete the item, save where noted.

  /// A row or a link of the view was tapped, by pointer, key or assistive technology.
  void activated();
  /// A sheet of the view came up, also one with a web page.
  void sheetOpened();
  /// It left: emitted once for each `sheetOpened`. If the item is deleted while its sheet is up, it
  /// says `Host` from its destructor: a slot deletes it only for another reason.
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
  friend class ViewSurface;
  friend struct TapRoom;
  void settingsChanged() override;

  std::unique_ptr<ViewSurface> surface_;
};

}  // namespace quorix::qt
