#pragma once

#include <QAccessible>
#include <QObject>
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

/// Makes surfaces known to assistive technology, and tells when one begins to listen. Lives as long
/// as the application object; main thread.
class QUORIX_EXPORT AccessibilityBridge : public QObject, private QAccessible::ActivationObserver {
  Q_OBJECT

 public:
  static AccessibilityBridge* instance();
  ~AccessibilityBridge() override;

  /// Answers for `object` from now on with `surface`, which must outlive it or be removed before.
  void add(QObject& object, AccessibleSurface& surface);
  /// Also when the application object is gone, which some views outlive.
  static void remove(QObject& object);
  static AccessibleSurface* surfaceOf(const QObject* object);

  /// Something modal came over a window, or went.
  static void coverChanged();

  /// Whether assistive technology listens.
  static bool isActive();

 signals:
  void began();

 private:
  explicit AccessibilityBridge(QObject* application);
  void accessibilityActiveChanged(bool active) override;

  bool active_ = false;  ///< not every platform keeps what its observers are told
};

}  // namespace quorix::qt
