#pragma once

#include "qt/accessibility/AccessibilityBridge.h"

class QQuickItem;

namespace quorix::qt {

/// Implements an accessible surface for any item of a Qt Quick window.
class QuickAccessibleSurface : public AccessibleSurface {
 public:
  explicit QuickAccessibleSurface(QQuickItem& item) : item_(item) {}
  /// The item that shows `responder`; null for null.
  static QQuickItem* itemOf(const hosting::Responder* responder);

  /// Makes Qt Quick offer the item to assistive technology. Does nothing while none listens.
  void offer();

  void takeFocus() override;
  QRect onScreen(const layout::Rect& frame) const override;
  QRect onScreen() const override;
  QWindow* accessibleWindow() const override;
  QObject* accessibleParent() const override;
  bool isShown() const override;
  bool isCovered() const override;

 private:
  QQuickItem& item_;
};

}  // namespace quorix::qt
