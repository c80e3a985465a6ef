#pragma once

#include <functional>
#include <optional>

#include "platform/foundation/Export.h"
#include "platform/hosting/Responder.h"
#include "platform/hosting/ViewHost.h"

namespace quorix::hosting {

/// Moves the keyboard focus inside one view, and shows the ring around the focused element while
/// the keyboard is in use. Main thread.
class QUORIX_EXPORT ViewFocus {
 public:
  /// Why the surface got the focus or lost it.
  enum class Cause {
    forward,       ///< the keyboard, from before the view
    backward,      ///< the keyboard, from behind it
    interruption,  ///< a pop-up or another window
    other,
  };

  explicit ViewFocus(ViewHost& host) : host_(host) {}

  void came(Cause cause);
  void left(Cause cause);
  /// Moves the focus by keyboard. False after the last element: the focus leaves the view.
  bool walk(bool forward);
  /// Focuses the first element of a view that replaced the focused one; the ring stays as it was.
  void renewed() { host_.moveFocus(true); }
  /// Hides the ring when the user points.
  void hideRing() { ringWanted_ = false; }

  /// The frame of the focus ring.
  std::optional<layout::Rect> ring() const;

 private:
  ViewHost& host_;
  bool ringWanted_ = false;
};

class WindowSession;

/// A view in a window: settings, input, focus and its sheet. A toolkit's surface derives from this;
/// it knows its size and its window, and paints. Main thread.
class QUORIX_EXPORT ViewSession : public Responder, private ViewHost::Client {
 public:
  ViewHost& host() { return host_; }

  /// Shows another view, which starts with fresh states. The focus moves to its first element.
  void replaceView(swiftui::View view);
  /// The settings or the window's scale changed.
  void settingsChanged();

  bool handle(const KeyEvent& event) override;
  using Responder::handle;
  bool takesTapAt(layout::Point point) override;

  /// The surface is about to be deleted: closes its sheet, and calls `sheetClosed` now.
  void end();

  void focusCame(ViewFocus::Cause cause);
  void focusLeft(ViewFocus::Cause cause);
  /// Moves the focus by keyboard. False after the last element: the focus leaves the view.
  bool walk(bool forward);

  Settings settings() const override { return {environment(), allowsMotion()}; }
  const std::vector<render::AccessibilityElement>& elements() override;
  void activate(int index) override;
  bool focusElement(int index) override;
  std::optional<layout::Rect> focusFrame() const override;
  std::optional<layout::Rect> ringFrame() const override;

 protected:
  explicit ViewSession(text::TextEngine& engine) : host_(engine, *this), focus_(host_) {}

  /// The view moved to another window, or to none: closes its sheet in the former one.
  void leaveWindow() { abandonSheet(); }
  /// The view is in a window: shows its sheet there.
  void enterWindow();

  // Frames, for a surface that keeps what it painted.
  void viewNeedsDisplay() override;
  /// `size` changed: the next `refreshScene` makes a new scene.
  void resized() { sceneStale_ = true; }
  bool isSceneStale() const { return sceneStale_; }
  /// Before a frame: makes a new scene if the last one is stale, and lets the focus reach the
  /// surface or pass it. Returns whether there is a new scene: paint it.
  bool refreshScene();
  /// After a frame: frees the scene unless the view is seen, focused or read. Returns whether.
  bool rest(bool isSeen);

 private:
  virtual swiftui::Environment environment() const = 0;
  virtual bool allowsMotion() const = 0;
  virtual layout::Size size() const = 0;
  virtual bool hasFocus() const = 0;
  /// The surface is in the tab order.
  virtual bool acceptsFocus() const { return true; }
  virtual void setAcceptsFocus(bool) {}
  /// An element took a press. What hears of the focus may delete the surface.
  virtual void takeFocusByPress() = 0;
  /// Moves the focus to the next in the tab order. May delete the surface.
  virtual void giveFocusOn() = 0;
  /// The focus or its ring moved: paint a frame.
  virtual void needsFrame() = 0;
  /// The view or its settings changed: its size may have, too.
  virtual void contentChanged() = 0;
  /// The focused element changed: tell assistive technology, now or after the toolkit's notice
  /// about the whole view.
  virtual void focusMoved(bool later) = 0;
  /// There is a new scene: tell assistive technology.
  virtual void sceneChanged() {}
  /// Assistive technology listens.
  virtual bool isRead() const { return false; }
  /// Null without a window.
  virtual WindowSession* window() = 0;

  // What happened. Each may delete the surface.
  /// The user tapped something that acts: by pointer, key or assistive technology.
  virtual void activated() {}
  /// A sheet of the view opened. Called on a later turn, and once for sheets above each other.
  virtual void sheetOpened() {}
  /// It closed. One call for each of `sheetOpened`, also on a later turn.
  virtual void sheetClosed(SheetCloseReason) {}

  void presentationChanged() override { followSheet(); }
  void settleContent() override { host_.settle(); }
  const swiftui::Presentation* presentation() override { return host_.presentation(); }
  SheetSession* makeSheet() override;
  void sheetCameUp() override;
  void sheetLeft(SheetCloseReason reason) override;
  void tellOfSheets();

  void perform(const std::function<bool()>& action);
  bool pointerPressed(const PointerEvent& event) override;
  void pointerReleased(const PointerEvent& event) override;
  void pointerCancelled() override { host_.pointerCancelled(); }
  void used();
  void leaveFocus();

  ViewHost host_;
  ViewFocus focus_;
  bool sceneStale_ = true;
  int sheets_ = 0;                                         ///< the open ones that this opened
  bool toldOpen_ = false;                                  ///< `sheetOpened` was the latest call
  SheetCloseReason closeReason_ = SheetCloseReason::host;  ///< the latest
};

}  // namespace quorix::hosting
