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

/// Shows one view on a surface: evaluates it, lays it out, routes taps and keys into it, and tells
/// the surface when to paint again. Main thread.
class QUORIX_EXPORT ViewHost {
 public:
  /// The surface. Both calls may come while the surface itself is calling the host.
  class Client {
   public:
    virtual ~Client() = default;
    /// Size or scene may have changed: ask again before the next frame.
    virtual void viewNeedsDisplay() = 0;
    /// `presentation()` began, changed its content or ended.
    virtual void presentationChanged() = 0;
  };

  ViewHost(text::TextEngine& engine, Client& client);
  ~ViewHost();
  ViewHost(const ViewHost&) = delete;
  ViewHost& operator=(const ViewHost&) = delete;

  /// Shows another view, which starts with fresh states. The former view's sheet closes.
  void setRoot(swiftui::View root);
  /// Shows the same view with other values, as after an enclosing body was evaluated again. Keeps
  /// the states.
  void updateRoot(swiftui::View root);
  void setEnvironment(const swiftui::Environment& environment);
  const swiftui::Environment& environment() const;

  /// On screen, observed objects are subscribed and tasks run. Both end off screen.
  void setOnScreen(bool onScreen);

  /// The size that the view chooses when offered `proposal`.
  layout::Size sizeThatFits(layout::ProposedSize proposal);

  /// The display list of the view in an area of `size` less `safeArea`, centered if it is smaller.
  /// Elements that ignore the safe area extend into the insets. The reference is valid until the
  /// next call of this host.
  const render::Scene& scene(layout::Size size, const layout::EdgeInsets& safeArea = {});

  /// Moves the scene out. The next call that needs a scene makes it anew.
  render::Scene takeScene(layout::Size size);
  /// Frees the scene of a view that is out of sight. The next call that needs one makes it anew.
  void rest();
  /// Frees the sizes that `sizeThatFits` has answered, for a surface that keeps them itself.
  void forgetSizes();

  /// The sheet that the view asks for, or null.
  const swiftui::Presentation* presentation();

  /// The detents that the view asks of the sheet it is shown in; empty when it asks for none.
  const swiftui::PresentationDetents& detents();

  /// Runs what waits for the next turn of the main queue, for at most `mostTurns`: a view that
  /// changes in each of them must not stop the host.
  void settle();
  static constexpr int mostTurns = 8;

  // Input, in the coordinates of the latest scene.

  /// A press that ends where it began, on the same hit area, is a tap. Returns whether a hit area
  /// took the press.
  bool pointerPressed(layout::Point point);
  bool pointerReleased(layout::Point point);
  /// The same, but leaves the action to the caller. Absent when it is no tap.
  foundation::Action endPress(layout::Point point);
  void pointerCancelled();

  /// Moves the keyboard focus among the elements that act, of which those with one action are one
  /// stop. False after the last one: the focus leaves the view.
  bool moveFocus(bool forward);
  /// Moves it to accessibility element `index` of the latest scene. False when that does not act.
  bool focus(int index);
  void clearFocus();
  /// At how many places of the latest scene the focus stops.
  int focusStops() const;
  /// The frame of the focused element.
  std::optional<layout::Rect> focusFrame() const;
  /// The frame for a ring: around all that acts as the focused element does.
  std::optional<layout::Rect> ringFrame() const;
  /// Performs the focused element's action (Enter and Space). False when nothing has the focus.
  bool activateFocus();

  /// Performs the action of accessibility element `index` of the latest scene.
  bool activate(int index);

 private:
  struct QUORIX_HIDDEN State;
  std::unique_ptr<State> state_;
};

}  // namespace quorix::hosting
