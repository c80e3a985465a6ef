#pragma once

#include <memory>
#include <optional>

#include "platform/foundation/Action.h"
#include "platform/foundation/Export.h"
#include "platform/layout/Geometry.h"
#include "platform/render/Scene.h"
#include "platform/swiftui/Environment.h"
#include "platform/swiftui/View.h"
#include "platform/text/TextEngine.h"

namespace quorix::hosting {

/// Shows one view on a surface: evaluates it, lays it out, sends taps and keys to it, and notifies
/// the surface when to paint again. Main thread.
class QUORIX_EXPORT ViewHost {
 public:
  /// The surface. Both functions may be called during a call of the `ViewHost`: do not destroy it
  /// there. By default they have no effect, for a picture that is made once.
  class Client {
   public:
    virtual ~Client() = default;
    /// The size or the display list may have changed: ask again before the next frame.
    virtual void viewNeedsDisplay() {}
    /// `presentation()` began, changed its content or ended.
    virtual void presentationChanged() {}
  };

  ViewHost(text::TextEngine& engine, Client& client);
  ~ViewHost();
  ViewHost(const ViewHost&) = delete;
  ViewHost& operator=(const ViewHost&) = delete;

  /// Shows another view, which starts with fresh states. The former view's sheet closes.
  void setRoot(swiftui::View root);
  /// Updates the values of the same view, as after the evaluation of an enclosing body. Keeps the
  /// states.
  void updateRoot(swiftui::View root);
  void setEnvironment(const swiftui::Environment& environment);
  const swiftui::Environment& environment() const;

  /// On screen, observed objects are subscribed and tasks run. Off screen, both end.
  void setOnScreen(bool onScreen);

  /// The size in points that the view chooses for the offer `proposal`.
  layout::Size sizeThatFits(layout::ProposedSize proposal);

  /// The display list of the view in an area of `size` less `safeArea`, in points. A smaller view
  /// is centered. Elements that ignore the safe area extend into the insets. The reference is valid
  /// until the next call of this object.
  const render::Scene& scene(layout::Size size, const layout::EdgeInsets& safeArea = {});

  /// Moves the display list out. The next call that needs one makes a new one.
  render::Scene takeScene(layout::Size size);
  /// Frees the display list of a view that is not visible. The next call that needs one makes a new
  /// one.
  void rest();
  /// Frees the sizes that `sizeThatFits` cached, for a surface with its own cache.
  void forgetSizes();

  /// The sheet that the view presents, or null.
  const swiftui::Presentation* presentation();

  /// The detents that the view sets for the sheet in which it is shown; empty without any.
  const swiftui::PresentationDetents& detents();

  /// Runs the work that is queued for the next turn of the main queue. Repeats this at most
  /// `mostTurns` times, because a view may change on every turn.
  void settle();
  static constexpr int mostTurns = 8;

  // Input, in the coordinates of the latest display list.

  /// A press and a release on the same hit area are a tap. Returns whether a hit area took the
  /// press.
  bool pointerPressed(layout::Point point);
  bool pointerReleased(layout::Point point);
  /// Ends the press and returns the action of the tap, for the caller to run. Absent if it is not a
  /// tap.
  foundation::Action endPress(layout::Point point);
  void pointerCancelled();

  /// Moves the keyboard focus among the elements with an action. Elements with the same action are
  /// one stop. False after the last one: the focus leaves the view.
  bool moveFocus(bool forward);
  /// Moves the focus to accessibility element `index` of the latest display list. False if that has
  /// no action.
  bool focus(int index);
  void clearFocus();
  /// The number of focus stops in the latest display list.
  int focusStops() const;
  /// The frame of the focused element.
  std::optional<layout::Rect> focusFrame() const;
  /// The rectangle to draw the focus ring around: all elements with the focused element's action.
  std::optional<layout::Rect> ringFrame() const;
  /// Performs the focused element's action (Enter and Space). False without a focused element.
  bool activateFocus();

  /// Performs the action of accessibility element `index` of the latest display list. False if
  /// there is none.
  bool activate(int index);

 private:
  struct QUORIX_HIDDEN State;
  std::unique_ptr<State> state_;
};

}  // namespace quorix::hosting
