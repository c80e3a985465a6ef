#pragma once

#include <QPointF>

#include "platform/foundation/Export.h"
#include "platform/hosting/ViewFocus.h"
#include "platform/hosting/ViewHost.h"
#include "qt/EnvironmentSource.h"
#include "qt/FingerTracker.h"
#include "qt/PresentedSheet.h"

class QEvent;
class QKeyEvent;
class QMouseEvent;

namespace quorix::qt {

class WindowScene;

/// What a view does in every toolkit: settings, input, focus and its sheet. A toolkit's surface
/// derives from this and gives it a size, a place and paint. Main thread.
class QUORIX_EXPORT HostedView : private hosting::ViewHost::Client {
 public:
  HostedView(const HostedView&) = delete;
  HostedView& operator=(const HostedView&) = delete;

  hosting::ViewHost& host() { return host_; }

  /// Shows another view, which begins afresh; the focus inside goes over to it.
  void replaceView(swiftui::View view);

  /// The settings, the desktop or the window's scale changed.
  void environmentChanged();

  /// Takes an event of the pointer or a key that acts: false when it is another. What a key does
  /// may delete the surface: touch nothing of it afterwards.
  bool handle(QEvent& event);
  void pointerLost();
  bool takesTapAt(QPointF point);

  void focusCame(Qt::FocusReason reason);
  void focusWent(Qt::FocusReason reason);
  /// Assistive technology has an element act.
  void activate(int index);
  /// It leads the focus to an element. False when that does not act.
  bool focusElement(int index);
  /// The keyboard moves the focus on. False when there is no further element.
  bool walk(bool forward);

 protected:
  /// `self` is the item or widget.
  explicit HostedView(QObject& self);
  ~HostedView() override;

  /// The element that has the keyboard focus, and the one that the ring goes around.
  std::optional<layout::Rect> focusFrame() const;
  std::optional<layout::Rect> ringFrame() const;
  /// The view came to another window, or to none: its sheet leaves the one before.
  void leaveSheet() { sheet_.abandon(); }
  void presentationChanged() override { sheet_.follow(); }
  /// Nothing in the view acts any more: the focus leaves it, on a later turn.
  void leaveFocus();

 private:
  virtual EnvironmentSource settings() const = 0;
  virtual layout::Size size() const = 0;
  /// Device pixels for each point.
  virtual double scale() const = 0;
  virtual bool hasFocus() const = 0;
  /// A press came to something that acts.
  virtual void takeFocusByPress() = 0;
  /// The focus goes to the next in the tab order, or to whom the toolkit gives it. May delete the
  /// surface.
  virtual void giveFocusOn() = 0;
  /// The focus or its ring moved: a frame is wanted.
  virtual void needsFrame() = 0;
  /// The view or its settings changed: who asks for its size gets the new one.
  virtual void contentChanged() = 0;
  /// The scene of the window; null without a window.
  virtual WindowScene* windowScene() = 0;

  void used();
  void pressed(QMouseEvent& event);
  void released(QMouseEvent& event);
  void handleTouch(QTouchEvent& event);
  void release(QPointF point);
  bool handleKey(QKeyEvent& event);
  SheetSurface* makeSheet();

  QObject& self_;
  hosting::ViewHost host_;
  hosting::ViewFocus focus_;
  FingerTracker finger_;
  bool mouseTaken_ = false;  ///< its press was on something that acts
  bool releasing_ = false;   ///< a tap is about to act
  PresentedSheet sheet_;
};

}  // namespace quorix::qt
