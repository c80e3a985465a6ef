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

/// A view or a sheet as a target for input and assistive technology, and the sheet that its content
/// presents. Main thread.
class QUORIX_EXPORT Responder {
 public:
  Responder() = default;
  virtual ~Responder();
  Responder(const Responder&) = delete;
  Responder& operator=(const Responder&) = delete;

  /// Handles the mouse, or the first finger of a touch. Returns false if the event belongs to what
  /// is below. An action may delete the surface: do not use it afterwards.
  bool handle(const PointerEvent& event);
  /// Handles a wheel or a trackpad. False if it is not used.
  virtual bool handle(const ScrollEvent&) { return false; }
  /// Handles a key. False if it is not used.
  virtual bool handle(const KeyEvent& event) = 0;
  /// Cancels the press because the toolkit gave the pointer to another object. Has no effect after
  /// the release, because some toolkits report every release in this way too.
  void pointerLost();
  virtual bool takesTapAt(layout::Point point) = 0;

  /// The elements in reading order. Valid until the next call.
  virtual const std::vector<render::AccessibilityElement>& elements() = 0;
  /// Whether an element with this frame is scrolled out of sight.
  virtual bool isScrolledAway(const layout::Rect&) const { return false; }
  virtual void activate(int index) = 0;
  /// Moves the keyboard focus to an element. False if that has no action.
  virtual bool focusElement(int index) = 0;
  /// The focused element's frame while the surface has the focus.
  virtual std::optional<layout::Rect> focusFrame() const = 0;
  /// The frame to draw the focus ring around, while the keyboard moves the focus.
  virtual std::optional<layout::Rect> ringFrame() const = 0;

  /// Runs the work that is queued for later turns and ends all motion, here and in the sheets
  /// above. Returns whether a sheet changed: then call it again. For pictures and tests.
  bool settle();

  /// The settings for a sheet above.
  virtual Settings settings() const = 0;

  /// A reference that expires when this is deleted.
  std::weak_ptr<Responder*> weak();

 protected:
  /// Runs `work` on a later turn of the main queue, unless this is deleted by then.
  void later(std::function<void()> work);

  // The sheet above.

  /// The presentation changed. Updates the sheet on a later turn, because the caller may be in the
  /// middle of its own work.
  void followSheet();
  /// Null without a sheet. The sheet may be closed.
  SheetSession* sheet() const;
  /// Closes the sheet immediately, without motion.
  void closeSheet();
  /// Closes the sheet without motion; the focus returns on a later turn.
  void abandonSheet();

 private:
  /// False if the press hits nothing that takes it.
  virtual bool pointerPressed(const PointerEvent& event) = 0;
  virtual bool pointerMoved(const PointerEvent&) { return false; }
  virtual void pointerReleased(const PointerEvent& event) = 0;
  virtual void pointerCancelled() = 0;

  friend class SheetSession;
  /// A sheet that this opened has appeared or closed. Called while the sheet is in the middle of
  /// its work.
  virtual void sheetCameUp() {}
  virtual void sheetLeft(SheetCloseReason) {}

  /// Runs what the content has queued for its next turn.
  virtual void settleContent() = 0;
  virtual void endMotion() {}
  /// Null if the content presents no sheet.
  virtual const swiftui::Presentation* presentation() = 0;
  /// Makes a new sheet above this; null without a window.
  virtual SheetSession* makeSheet() = 0;

  void showSheet();

  std::shared_ptr<Responder*> alive_;  ///< made on first use
  std::weak_ptr<Responder*> sheet_;
  std::optional<int> pointer_;  ///< the pressed one
  double releasedAt_ = 0;       ///< time of the latest release
  bool sheetQueued_ = false;
};

}  // namespace quorix::hosting
