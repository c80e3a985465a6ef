#pragma once

#include "qt/accessibility/AccessibilityBridge.h"

class QWidget;

namespace quorix::qt {

/// Implements an accessible surface for any widget.
class WidgetAccessibleSurface : public AccessibleSurface {
 public:
  explicit WidgetAccessibleSurface(QWidget& widget) : widget_(widget) {}

  void takeFocus() override;
  QRect onScreen(const layout::Rect& frame) const override;
  QRect onScreen() const override;
  QWindow* accessibleWindow() const override;
  QObject* accessibleParent() const override;
  bool isShown() const override;
  bool isCovered() const override;

 private:
  QWidget& widget_;
};

}  // namespace quorix::qt
