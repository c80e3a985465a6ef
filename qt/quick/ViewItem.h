#pragma once

#include <QQuickItem>
#include <memory>
#include <optional>

#include "platform/swiftui/Environment.h"
#include "platform/swiftui/View.h"

namespace quorix::qt {

class ViewSurface;

/// Shows a view in a Qt Quick window. A size in points is a size in items' units.
///
/// Its implicit size is what the view wants: the ideal size, and once it was given a width the
/// height that the view needs at that width, so that layouts, positioners and anchors place it like
/// a text. It is painted only where it can be seen and only when something changed. Sheets of the
/// view open over the window that the item is in. Main thread.
///
///     auto* row = new qt::ViewItem(ScoreWidgetBuilder::buildSwiftUIScoreWidgetView(...), page);
///     row->setWidth(page->width());
class ViewItem : public QQuickItem {
  Q_OBJECT

 public:
  explicit ViewItem(QQuickItem* parent = nullptr);
  explicit ViewItem(swiftui::View view, QQuickItem* parent = nullptr);
  ~ViewItem() override;

  /// Shows another view, which begins afresh; a sheet of the one before goes.
  void setView(swiftui::View view);

  /// Light or dark; nothing follows the desktop, which is what holds until this is called.
  void setAppearance(std::optional<graphics::Appearance> appearance);
  /// The reading direction; nothing follows the application's.
  void setLayoutDirection(std::optional<layout::LayoutDirection> direction);
  void setTextSize(swiftui::ContentSizeCategory category);
  /// Whether sheets move; nothing follows the user's wish where the desktop passes it on.
  void setMotion(std::optional<bool> motion);

 protected:
  void itemChange(ItemChange change, const ItemChangeData& data) override;
  void geometryChange(const QRectF& now, const QRectF& before) override;
  void updatePolish() override;
  QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData* data) override;

  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseUngrabEvent() override;
  void touchEvent(QTouchEvent* event) override;
  void touchUngrabEvent() override;
  void hoverEnterEvent(QHoverEvent* event) override;
  void hoverMoveEvent(QHoverEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  friend class ViewSurface;

  std::unique_ptr<ViewSurface> surface_;
};

}  // namespace quorix::qt
