#pragma once

#include <QRect>
#include <vector>

#include "platform/foundation/Export.h"
#include "platform/hosting/Responder.h"

class QObject;
class QWindow;

namespace quorix::qt {

/// What assistive technology can ask of a surface that shows a scene. Main thread.
class QUORIX_EXPORT AccessibleSurface {
 public:
  virtual ~AccessibleSurface() = default;

  virtual hosting::Responder& responder() = 0;
  /// What tells of itself, after the elements: views of other makers.
  virtual std::vector<QObject*> accessibleViews() const { return {}; }
  /// Takes the keyboard focus, which then is where the responder moved it.
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
