#pragma once

#include <QRect>
#include <functional>
#include <vector>

#include "platform/foundation/Export.h"
#include "platform/hosting/Responder.h"

class QAccessibleInterface;
class QObject;
class QString;
class QWindow;

namespace quorix::qt {

/// A view or a sheet in a window of either toolkit: answers and notifies assistive technology, and
/// is told of changes of the desktop and the window. Main thread.
class QUORIX_EXPORT Surface {
 public:
  Surface(const Surface&) = delete;
  Surface& operator=(const Surface&) = delete;

  /// The surface that `object` shows; null for other objects.
  static Surface* of(const QObject* object);
  /// Calls `call` for each surface. It may make and delete surfaces.
  static void forEach(const std::function<void(Surface&)>& call);
  /// Calls `windowStateChanged` of each surface in `window`.
  static void tellWindowState(const QWindow* window);
  /// Whether assistive technology listens.
  static bool areRead();
  /// The interface of `object`'s surface, for Qt's accessibility; null for other objects.
  static QAccessibleInterface* makeAccessible(const QString&, QObject* object);

  /// The item or the widget.
  QObject& object() const { return object_; }
  hosting::Responder& responder() const { return responder_; }
  /// Objects with accessibility interfaces of their own, such as pages. They come after the
  /// elements.
  virtual std::vector<QObject*> accessibleViews() const { return {}; }
  /// Takes the keyboard focus, for the element that the responder has focused.
  virtual void takeFocus() = 0;

  /// A frame of the display list on the screen, in points.
  virtual QRect onScreen(const layout::Rect& frame) const = 0;
  virtual QRect onScreen() const = 0;
  virtual QWindow* accessibleWindow() const = 0;
  /// The nearest ancestor that has an accessibility interface.
  virtual QObject* accessibleParent() const = 0;

  virtual bool isShown() const = 0;
  /// Something modal lies over it.
  virtual bool isCovered() const = 0;
  virtual bool isDialog() const { return false; }

  // Notices for assistive technology. They do nothing while none listens.

  /// Tells what changed in the display list since the last call.
  void tellScene();
  /// Tells where the focus is: now, or on a later turn.
  void tellFocus(bool later);
  /// Tells which surfaces something modal covers from now on, or no longer.
  static void tellCover();

  virtual void desktopChanged() {}
  /// Its window was shown, hidden, minimized or restored.
  virtual void windowStateChanged() {}
  /// Assistive technology listens from now on.
  virtual void accessibilityBegan() {}

 protected:
  Surface(QObject& object, hosting::Responder& responder);
  virtual ~Surface();

 private:
  QObject& object_;
  hosting::Responder& responder_;
};

}  // namespace quorix::qt
