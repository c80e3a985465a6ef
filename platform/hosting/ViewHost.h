#pragma once

#include <memory>
#include <optional>

#include "platform/foundation/Export.h"
#include "platform/layout/Geometry.h"
#include "platform/render/Scene.h"
#include "platform/swiftui/Environment.h"
#include "platform/swiftui/Presentation.h"
#include "platform/swiftui/View.h"
#include "platform/text/TextEngine.h"

namespace quorix::hosting {

/// Puts one view on a surface: evaluates it, lays it out, routes taps and keys into it and says
/// when any of that changed. What every surface has in common stands here; main thread.
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

  /// Shows another view: it begins afresh, and a sheet of the one before goes.
  void setRoot(swiftui::View root);
  /// Shows the same view with other values, as when an enclosing body was evaluated again: its
  /// states stay.
  void updateRoot(swiftui::View root);
  void setEnvironment(const swiftui::Environment& environment);
  const swiftui::Environment& environment() const;

  /// On screen, observed objects are subscribed and tasks run; off screen both end.
  void setOnScreen(bool onScreen);

  /// The size that the view chooses when offered `proposal`.
  layout::Size sizeThatFits(layout::ProposedSize proposal);

  /// The view placed in an area of `size` less `safeArea`, centred where it is smaller. What
  /// ignores the safe area goes on into the insets. The reference holds until the next call of this
  /// host.
  const render::Scene& scene(layout::Size size, const layout::EdgeInsets& safeArea = {});

  /// Nobody looks at the view: keeps its sizes and lets its scene go. Whatever needs the scene
  /// again has it made anew.
  void rest();

  /// The sheet that the view asks for, or null.
  const swiftui::Presentation* presentation();

  /// The detents that the view asks of the sheet it is shown in; empty when it asks for none.
  const swiftui::PresentationDetents& detents();

  /// Performs now what waits for the next turn of the main queue: for pictures and tests.
  void settle();

  // Input, in the coordinates of the latest scene.

  /// A press that ends where it began, on the same hit area, is a tap. Returns whether a hit area
  /// took the press.
  bool pointerPressed(layout::Point point);
  bool pointerReleased(layout::Point point);
  void pointerCancelled();

  /// Moves the keyboard focus among the elements that act. False when there is none further: focus
  /// leaves the view.
  bool moveFocus(bool forward);
  /// Moves it to accessibility element `index` of the latest scene. False when that does not act.
  bool focus(int index);
  void clearFocus();
  /// How many elements of the latest scene act.
  int actingElements() const;
  /// Where the focus ring goes.
  std::optional<layout::Rect> focusFrame() const;
  /// Performs the focused element's action (Enter and Space). False when nothing has the focus.
  bool activateFocus();

  /// Performs the action of accessibility element `index` of the latest scene.
  bool activate(int index);

 private:
  struct QUORIX_HIDDEN State;
  std::unique_ptr<State> state_;
};

}  // namespace quorix::hosting
