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
  /// Objects with accessibility interfaces of their own, such as pages. They come after the
  /// elements.
  virtual std::vector<QObject*> accessibleViews() const { return {}; }
  /// Takes the keyboard focus, for the element that the responder has focused.
  virtual void takeFocus() = 0;

  /// A frame of the scene on the screen, in points.
  virtual QRect onScreen(const layout::Rect& frame) const = 0;
  virtual QRect onScreen() const = 0;
  virtual QWindow* accessibleWindow() const = 0;
  /// The nearest ancestor that has an accessibility interface.
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

  /// From now on `surface` answers for `object`. It must outlive `object` or be removed before.
  void add(QObject& object, AccessibleSurface& surface);
  /// Works without the application object too: some views outlive it.
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

  bool active_ = false;  ///< not every platform keeps what it tells observers
};

}  // namespace quorix::qt
