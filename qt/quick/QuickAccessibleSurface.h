#pragma once

#include <QQuickItem>
#include <QQuickWindow>

#include "qt/Surface.h"

namespace quorix::qt {

/// Implements a surface for any item of a Qt Quick window.
class QuickAccessibleSurface : public Surface {
 public:
  QuickAccessibleSurface(QQuickItem& item, hosting::Responder& responder)
      : Surface(item, responder) {}
  /// The item that shows `responder`; null for null.
  static QQuickItem* itemOf(const hosting::Responder* responder) {
    const auto* surface = dynamic_cast<const QuickAccessibleSurface*>(responder);
    return surface ? &surface->item() : nullptr;
  }

  void takeFocus() override { item().forceActiveFocus(Qt::OtherFocusReason); }
  QRect onScreen(const layout::Rect& frame) const override;
  QRect onScreen() const override { return onScreen({{}, {item().width(), item().height()}}); }
  QWindow* accessibleWindow() const override { return item().window(); }
  QObject* accessibleParent() const override;
  bool isShown() const override {
    return item().isVisible() && item().window() && item().window()->isVisible();
  }
  bool isCovered() const override;
  /// Whether `item` of the same window is below `sheet`, unlike a pop-up that opened later.
  static bool liesOver(const QQuickItem& sheet, const QQuickItem* item);
  void accessibilityBegan() override { offer(); }

 protected:
  /// Makes Qt Quick offer the item to assistive technology. Does nothing while none listens.
  void offer();

 private:
  QQuickItem& item() const { return static_cast<QQuickItem&>(object()); }
};

}  // namespace quorix::qt
