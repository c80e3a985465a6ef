#pragma once

#include <QAccessible>
#include <QObject>

#include "platform/foundation/Export.h"

namespace quorix::qt {

class AccessibleSurface;

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
