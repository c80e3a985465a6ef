#pragma once

#include <functional>
#include <optional>
#include <utility>

#include "platform/foundation/Export.h"
#include "platform/hosting/Responder.h"
#include "platform/hosting/ViewHost.h"

namespace quorix::hosting {

/// Moves the keyboard focus inside one view, and shows the ring around the focused element while
/// the keyboard is in use. Main thread.
class QUORIX_EXPORT ViewFocus {
 public:
  /// Why the surface got or lost the focus.
  enum class Cause {
    forward,       ///< by keyboard, from before the view
    backward,      ///< by keyboard, from after the view
    interruption,  ///< to or from a pop-up or another window
    other,
  };

  explicit ViewFocus(ViewHost& host) : host_(host) {}

  void came(Cause cause);
  void left(Cause cause);
  /// Moves the focus by keyboard. False after the last element: the focus leaves the view.
  bool walk(bool forward);
  /// Focuses the first element of a new view in place of the focused one. The ring stays shown or
  /// hidden.
  void renewed() { host_.moveFocus(true); }
  /// Hides the ring when the user clicks or taps.
  void hideRing() { ringWanted_ = false; }

  /// The rectangle to draw the focus ring around, if it is shown.
  std::optional<layout::Rect> ring() const;

 private:
  ViewHost& host_;
  bool ringWanted_ = false;
};

class WindowSession;

/// A view in a window: settings, input, focus and its sheet. A toolkit's surface derives from this,
/// sets its size and place, and paints it. Main thread.
class QUORIX_EXPORT ViewSession : public Responder, private ViewHost::Client {
 public:
  ViewHost& host() { return host_; }

  /// Shows another view with fresh states. The focus moves to its first element.
  void replaceView(swiftui::View view);
  /// Call after a change of the settings, of the desktop's, or of the window's scale.
  void settingsChanged();

  bool handle(const KeyEvent& event) override;
  using Responder::handle;
  bool takesTapAt(layout::Point point) override;

  /// The surface is about to be deleted: closes its sheet and reports that immediately.
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

  // For surfaces that keep their size and their painted picture between frames.
  void viewNeedsDisplay() override;
  /// `size` changed: the next `refreshScene` makes a new display list.
  void resized() { sceneStale_ = true; }
  bool isSceneStale() const { return sceneStale_; }
  /// Whether the view's size may have changed since the last call of `takeSizeStale`.
  bool isSizeStale() const { return sizeStale_; }
  bool takeSizeStale() { return std::exchange(sizeStale_, false); }
  /// Call before a frame. If the display list is stale, makes a new one and puts the surface into
  /// the tab order or takes it out. Returns whether it did: then paint again.
  bool refreshScene();
  /// Call after a frame. Frees the display list, unless the view is seen, focused or read by
  /// assistive technology. Returns whether it did.
  bool rest(bool isSeen);

 private:
  virtual swiftui::Environment environment() const = 0;
  virtual bool allowsMotion() const = 0;
  virtual layout::Size size() const = 0;
  virtual bool hasFocus() const = 0;
  /// Whether the surface is in the tab order.
  virtual bool acceptsFocus() const { return true; }
  virtual void setAcceptsFocus(bool) {}
  /// Takes the focus because an element was pressed. A focus handler may delete the surface.
  virtual void takeFocusByPress() = 0;
  /// Moves the focus to the next object in the tab order. May delete the surface.
  virtual void giveFocusOn() = 0;
  /// A change is visible: paint a frame.
  virtual void needsFrame() = 0;
  /// The view or its settings changed, and possibly its size.
  virtual void contentChanged() = 0;
  /// Notifies assistive technology of the newly focused element, now or after the toolkit has
  /// announced the whole view.
  virtual void focusMoved(bool later) = 0;
  /// Notifies assistive technology of a new display list.
  virtual void sceneChanged() {}
  /// Whether assistive technology listens.
  virtual bool isRead() const { return false; }
  /// Null without a window.
  virtual WindowSession* window() = 0;

  // Events. Each may delete the surface.
  /// The user activated an element with an action, by pointer, key or assistive technology.
  virtual void activated() {}
  /// A sheet of the view is open. Called on a later turn, and once for a whole stack of sheets.
  virtual void sheetOpened() {}
  /// The sheets are closed. Called on a later turn, once for each `sheetOpened`.
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
  bool sizeStale_ = true;
  int sheets_ = 0;         ///< open sheets that this view opened
  bool toldOpen_ = false;  ///< whether `sheetOpened` was the latest call
  SheetCloseReason closeReason_ = SheetCloseReason::host;  ///< the latest
};

}  // namespace quorix::hosting
