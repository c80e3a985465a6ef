#pragma once

#include <memory>
#include <optional>

#include "platform/foundation/Export.h"
#include "platform/hosting/Input.h"
#include "platform/hosting/ViewHost.h"

namespace quorix::hosting {

/// Shows one sheet over a window: the dimmed background, the rounded panel that rises from the
/// bottom, its heights, its scrolling content, the drag that closes it and the motion between. A
/// sheet with an embedded page does not scroll; the page does. Every coordinate is the window's, in
/// points. A surface makes one for each sheet that it shows; main thread.
class QUORIX_EXPORT SheetPresenter {
 public:
  class Client {
   public:
    virtual ~Client() = default;
    /// Something moved or changed: paint `scene` again, and call `advance` each frame while it
    /// returns true.
    virtual void sheetNeedsDisplay() = 0;
    /// `presentation()` began, changed or ended. May come while the presenter is being called.
    virtual void sheetPresentationChanged() {}
    /// The panel has left the window: remove the overlay and return the focus. The client may
    /// destroy the presenter here.
    virtual void sheetDidClose() = 0;
  };

  SheetPresenter(text::TextEngine& engine, Client& client);
  ~SheetPresenter();
  SheetPresenter(const SheetPresenter&) = delete;
  SheetPresenter& operator=(const SheetPresenter&) = delete;

  void setEnvironment(const swiftui::Environment& environment);
  /// `safeArea` is what the device covers at the window's edges. The content keeps clear of it.
  void setWindow(layout::Size size, layout::EdgeInsets safeArea);
  /// Without motion, changes happen at once.
  void setMotion(bool enabled);

  /// Shows `presentation`. A new sheet rises; one that is up takes the changed content.
  void present(const swiftui::Presentation& presentation);
  /// Closes the sheet on its owner's behalf: it falls, then the client is told.
  void retract();
  /// Closes the sheet on the user's behalf: writes false through the binding.
  void dismiss(SheetCloseReason reason = SheetCloseReason::key);
  /// What made the binding false; `host` unless the user did, in the sheet or by `dismiss`.
  SheetCloseReason closeReason() const;

  /// The sheet that the content itself presents. Show it above this one, with a presenter of its
  /// own. Null without one, and while this sheet closes.
  const swiftui::Presentation* presentation();

  /// Moves on by `seconds`. Returns whether it is still moving.
  bool advance(double seconds);
  bool isMoving() const;

  /// The whole overlay: dimming, panel, content; its accessibility elements are the sheet's own.
  const render::Scene& scene();
  layout::Rect panelFrame() const;

  // The same in parts, for a surface that moves pictures instead of painting each frame.

  /// The color over the window behind the panel.
  graphics::RGBA shade();
  /// The panel at rest, with its top left corner as origin. Motion changes only `panelFrame`. Fill
  /// what is left down to the window's bottom with `panelColor`.
  const render::Scene& panel();
  graphics::RGBA panelColor() const;
  /// Changes when `panel` may have changed.
  unsigned panelRevision() const;

  void pointerPressed(layout::Point point);
  void pointerMoved(layout::Point point);
  /// `velocity` is the finger's downward speed in points a second.
  void pointerReleased(layout::Point point, double velocity);
  void pointerCancelled();
  void scroll(const ScrollEvent& event);
  /// False when it is none of the keys that scroll.
  bool scroll(Key key);
  /// Whether a frame of `scene` is scrolled out of sight.
  bool isScrolledAway(const layout::Rect& frame) const;

  /// Moves the focus inside the sheet, from the last element to the first: it never leaves an open
  /// sheet, and scrolls to it. False when the focus should move to the embedded page, which comes
  /// after the last element.
  bool moveFocus(bool forward);
  /// Moves it to accessibility element `index` of `scene`. False when that does not act.
  bool focus(int index);
  /// The embedded page took the focus.
  void dropFocus();
  std::optional<layout::Rect> focusFrame() const;
  /// The frame of the focus ring, once the keyboard has moved the focus.
  std::optional<layout::Rect> ringFrame() const;
  /// These do nothing while the sheet closes.
  bool activateFocus();
  bool activate(int index);

  /// Runs what the content has queued for its next turn.
  void settleContent();
  /// The same, ends all motion and hides the scroll indicator. For
  /// pictures and tests.
  void settle();

 private:
  struct QUORIX_HIDDEN State;
  std::unique_ptr<State> state_;
};

}  // namespace quorix::hosting
