#pragma once

#include <QQuickItem>
#include <QQuickWindow>

#include "qt/Surface.h"

namespace quorix::qt {

/// Implements a surface for any item of a Qt Quick window.
class QuickAccessibleSurface : public Surface {
 public:
  QuickAccessibleSurface(QQuickItem& item, hosting::Responder& responder)
      : Surface(item, responder), item_(item) {}
  /// The item that shows `responder`; null for null.
  static QQuickItem* itemOf(const hosting::Responder* responder) {
    const auto* surface = dynamic_cast<const QuickAccessibleSurface*>(responder);
    return surface ? &surface->item_ : nullptr;
  }

  void takeFocus() override { item_.forceActiveFocus(Qt::OtherFocusReason); }
  QRect onScreen(const layout::Rect& frame) const override;
  QRect onScreen() const override { return onScreen({{}, {item_.width(), item_.height()}}); }
  QWindow* accessibleWindow() const override { return item_.window(); }
  QObject* accessibleParent() const override;
  bool isShown() const override {
    return item_.isVisible() && item_.window() && item_.window()->isVisible();
  }
  bool isCovered() const override;
  /// Whether `item` of the same window is below `sheet`, unlike a pop-up that opened later.
  static bool liesOver(const QQuickItem& sheet, const QQuickItem* item);
  void accessibilityBegan() override { offer(); }

 protected:
  /// Makes Qt Quick offer the item to assistive technology. Does nothing while none listens.
  void offer();

 private:
  QQuickItem& item_;
};

}  // namespace quorix::qt
