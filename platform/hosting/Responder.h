#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "platform/foundation/Export.h"
#include "platform/hosting/Input.h"
#include "platform/hosting/Settings.h"
#include "platform/render/Scene.h"
#include "platform/swiftui/View.h"

namespace quorix::hosting {

class SheetSession;

/// A view or a sheet: takes input, answers assistive technology, and shows the sheet that its
/// content presents. Main thread.
class QUORIX_EXPORT Responder {
 public:
  Responder() = default;
  virtual ~Responder();
  Responder(const Responder&) = delete;
  Responder& operator=(const Responder&) = delete;

  /// Follows the mouse, or the first finger of a touch. False if the event is for what lies below.
  /// An action may delete the surface: do not touch it afterwards.
  bool handle(const PointerEvent& event);
  /// The same for a wheel or a trackpad.
  virtual bool handle(const ScrollEvent&) { return false; }
  /// The same for a key.
  virtual bool handle(const KeyEvent& event) = 0;
  /// The toolkit gave the pointer to something else. Does nothing after the release, after which
  /// some toolkits call this, too.
  void pointerLost();
  virtual bool takesTapAt(layout::Point point) = 0;

  /// In reading order. Valid until the next call.
  virtual const std::vector<render::AccessibilityElement>& elements() = 0;
  /// Whether an element with this frame is scrolled out of sight.
  virtual bool isScrolledAway(const layout::Rect&) const { return false; }
  virtual void activate(int index) = 0;
  /// Moves the keyboard focus to an element. False when that does not act.
  virtual bool focusElement(int index) = 0;
  /// The focused element's frame while the surface has the focus.
  virtual std::optional<layout::Rect> focusFrame() const = 0;
  /// The same while the keyboard moves the focus: draw the ring around it.
  virtual std::optional<layout::Rect> ringFrame() const = 0;

  /// Runs what waits for a later turn and ends all motion, here and in the sheets above. Returns
  /// whether there was a sheet to follow: call again then. For pictures and tests.
  bool settle();

  /// A sheet above this takes these over.
  virtual Settings settings() const = 0;

  /// Locks to null once this is deleted.
  std::weak_ptr<Responder*> weak();

 protected:
  /// Runs `work` on a later turn of the main queue, unless this is deleted by then.
  void later(std::function<void()> work);

  // The sheet above.

  /// The presentation changed: follows on a later turn, because the caller may be at work.
  void followSheet();
  /// Null without one. It may be closed.
  SheetSession* sheet() const;
  /// Closes the sheet without motion, now.
  void closeSheet();
  /// The same, but the focus returns on a later turn.
  void abandonSheet();

 private:
  /// False when nothing takes the press.
  virtual bool pointerPressed(const PointerEvent& event) = 0;
  virtual bool pointerMoved(const PointerEvent&) { return false; }
  virtual void pointerReleased(const PointerEvent& event) = 0;
  virtual void pointerCancelled() = 0;

  friend class SheetSession;
  /// A sheet that this opened came up, or closed. Called while the sheet is at work.
  virtual void sheetCameUp() {}
  virtual void sheetLeft(SheetCloseReason) {}

  /// Runs what the content has queued for its next turn.
  virtual void settleContent() = 0;
  virtual void endMotion() {}
  /// Null while the content presents no sheet.
  virtual const swiftui::Presentation* presentation() = 0;
  /// A new sheet above this; null without a window.
  virtual SheetSession* makeSheet() = 0;

  void showSheet();

  std::shared_ptr<Responder*> alive_;  ///< made on first use
  std::weak_ptr<Responder*> sheet_;
  std::optional<int> pointer_;  ///< the pressed one
  double releasedAt_ = 0;       ///< the time of the latest release
  bool sheetQueued_ = false;
};

}  // namespace quorix::hosting
