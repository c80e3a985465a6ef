#pragma once

#include <memory>
#include <optional>

#include "platform/foundation/Export.h"
#include "platform/hosting/ViewHost.h"

namespace quorix::hosting {

/// Shows one sheet over a window: the dimmed background, the rounded panel that rises from the
/// bottom, its heights, the drag that closes it and the motion between. Every coordinate is the
/// window's, in points. A surface makes one for each sheet that it shows; main thread.
class QUORIX_EXPORT SheetPresenter {
 public:
  class Client {
   public:
    virtual ~Client() = default;
    /// Something moved or changed: ask `scene` again; call `advance` each frame while it says so.
    virtual void sheetNeedsDisplay() = 0;
    /// The panel has left the window: take the overlay away and give the focus back. May destroy
    /// the presenter.
    virtual void sheetDidClose() = 0;
  };

  SheetPresenter(text::TextEngine& engine, Client& client);
  ~SheetPresenter();
  SheetPresenter(const SheetPresenter&) = delete;
  SheetPresenter& operator=(const SheetPresenter&) = delete;

  void setEnvironment(const swiftui::Environment& environment);
  void setWindow(layout::Size size, layout::EdgeInsets safeArea);
  /// Without motion every change is at once.
  void setMotion(bool enabled);

  /// Shows `presentation`: rises when it is new, takes over the changed content when it is up.
  void present(const swiftui::Presentation& presentation);
  /// The owner took the sheet back: falls, then tells the client.
  void retract();
  /// The user closes it (Escape, the Back key, assistive technology): writes false through the
  /// binding.
  void dismiss();

  /// Moves on by `seconds`. Returns whether it is still moving.
  bool advance(double seconds);
  bool isMoving() const;

  /// The whole overlay: dimming, panel, content; its accessibility elements are the sheet's own.
  const render::Scene& scene();
  layout::Rect panelFrame() const;

  // The same in parts, for a surface that moves pictures rather than paint each frame anew.

  /// What lies over the window behind the panel.
  graphics::RGBA shade();
  /// The panel at rest, from its own top left: motion leaves it as it is, and `panelFrame` says
  /// where it stands. Where it does not reach the window's bottom, `panelColor` goes on.
  const render::Scene& panel();
  graphics::RGBA panelColor() const;
  /// Another number whenever `panel` may have changed.
  unsigned panelRevision() const;

  void pointerPressed(layout::Point point);
  void pointerMoved(layout::Point point);
  /// `velocity` is the finger's downward speed in points a second.
  void pointerReleased(layout::Point point, double velocity);
  void pointerCancelled();

  /// Moves the focus inside the sheet, round and round: it never leaves while the sheet is up.
  /// False when it is the turn of what paints itself in the sheet, which is after the last element.
  bool moveFocus(bool forward);
  /// Moves it to accessibility element `index` of `scene`. False when that does not act.
  bool focus(int index);
  /// The focus went to what paints itself in the sheet.
  void dropFocus();
  std::optional<layout::Rect> focusFrame() const;
  /// The element that the ring goes around, once the keyboard moved the focus.
  std::optional<layout::Rect> ringFrame() const;
  /// These do nothing any more once the sheet is on its way out.
  bool activateFocus();
  bool activate(int index);

  /// Performs now what waits for the next turn, and ends all motion: for pictures and tests.
  void settle();

 private:
  struct QUORIX_HIDDEN State;
  std::unique_ptr<State> state_;
};

}  // namespace quorix::hosting
