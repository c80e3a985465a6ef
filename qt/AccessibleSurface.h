#pragma once

#include <QRect>
#include <optional>
#include <vector>

#include "platform/foundation/Export.h"
#include "platform/render/Scene.h"

class QObject;
class QWindow;

namespace quorix::qt {

/// What assistive technology can ask of a surface that shows a scene. Main thread.
class QUORIX_EXPORT AccessibleSurface {
 public:
  virtual ~AccessibleSurface() = default;

  /// In reading order; holds until the surface is asked for anything else.
  virtual const std::vector<render::AccessibilityElement>& accessibilityElements() = 0;
  /// What tells of itself, after the elements: views of other makers.
  virtual std::vector<QObject*> accessibleViews() const { return {}; }
  virtual void performAccessibilityAction(int index) = 0;
  virtual std::optional<layout::Rect> focusedFrame() const = 0;
  /// Leads the keyboard focus inside the surface to an element. False when that does not act.
  virtual bool focusElement(int index) = 0;
  /// Takes the keyboard focus, which then is where `focusElement` led it.
  virtual void takeFocus() = 0;

  /// A frame of the scene on the screen, in points.
  virtual QRect onScreen(const layout::Rect& frame) const = 0;
  virtual QRect onScreen() const = 0;
  virtual QWindow* accessibleWindow() const = 0;
  /// The nearest object above that assistive technology knows.
  virtual QObject* accessibleParent() const = 0;

  virtual bool isShown() const = 0;
  /// Something modal lies over it.
  virtual bool isCovered() const = 0;
  virtual bool isDialog() const { return false; }
};

}  // namespace quorix::qt
