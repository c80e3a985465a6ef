#pragma once

#include <memory>
#include <optional>

#include "platform/foundation/Export.h"
#include "platform/hosting/Input.h"
#include "platform/hosting/ViewHost.h"

namespace quorix::hosting {

/// Shows one sheet over a window: the dimmed background, the rounded panel that rises from the
/// bottom, its heights, its scrolling content, the drag that closes it, and the motion. A sheet
/// with an embedded page does not scroll, because the page does. All coordinates are the window's,
/// in points. A surface makes one presenter for each sheet that it shows. Main thread.
class QUORIX_EXPORT SheetPresenter {
 public:
  class Client {
   public:
    virtual ~Client() = default;
    /// A change is visible: paint `scene` again, and call `advance` each frame until it returns
    /// false.
    virtual void sheetNeedsDisplay() = 0;
    /// `presentation()` began, changed or ended. May be called during a call of the presenter.
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
  /// `safeArea`: the insets that the device covers at the window's edges. The content avoids them.
  void setWindow(layout::Size size, layout::EdgeInsets safeArea);
  /// Without motion, changes happen at once.
  void setMotion(bool enabled);

  /// Shows `presentation`. A new sheet rises; an open one replaces its content.
  void present(const swiftui::Presentation& presentation);
  /// The owner no longer presents the sheet: moves it down, then calls `sheetDidClose`.
  void retract();
  /// The user closes the sheet: writes false through the binding. The owner then calls `retract`.
  void dismiss(SheetCloseReason reason = SheetCloseReason::key);
  /// Why the binding became false: `host` unless the user closed the sheet in it or by `dismiss`.
  SheetCloseReason closeReason() const;

  /// The sheet that the content itself presents. Show it above this one, with its own presenter.
  /// Null without one, and while this sheet closes.
  const swiftui::Presentation* presentation();

  /// Advances the motion by `seconds`. Returns whether it continues.
  bool advance(double seconds);
  bool isMoving() const;

  /// The whole overlay: dimming, panel and content. Contains only the sheet's accessibility
  /// elements.
  const render::Scene& scene();
  layout::Rect panelFrame() const;

  // The parts of `scene`, for a surface that moves pictures instead of painting each frame.

  /// The color over the window behind the panel.
  graphics::RGBA shade();
  /// The panel at rest, with its origin at zero. Motion changes only `panelFrame`. Fill the rest
  /// down to the window's bottom with `panelColor`.
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
  /// False if the key does not scroll.
  bool scroll(Key key);
  /// Whether `frame`, in `scene`, is scrolled out of sight.
  bool isScrolledAway(const layout::Rect& frame) const;

  /// Moves the focus inside the sheet and scrolls to it. The focus never leaves an open sheet: the
  /// first element follows the last one. With an embedded page, returns false after the last
  /// element: then the focus should move to the page.
  bool moveFocus(bool forward);
  /// Moves the focus to accessibility element `index` of `scene`. False if that has no action.
  bool focus(int index);
  /// The embedded page took the focus.
  void dropFocus();
  std::optional<layout::Rect> focusFrame() const;
  /// The rectangle to draw the focus ring around, once the keyboard has moved the focus.
  std::optional<layout::Rect> ringFrame() const;
  /// The next two have no effect while the sheet closes.
  bool activateFocus();
  bool activate(int index);

  /// Runs what the content has queued for its next turn.
  void settleContent();
  /// Runs the same, ends all motion and hides the scroll indicator. For pictures and tests.
  void settle();

 private:
  struct QUORIX_HIDDEN State;
  std::unique_ptr<State> state_;
};

}  // namespace quorix::hosting
