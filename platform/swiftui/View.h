#pragma once

#include <concepts>
#include <functional>
#include <memory>
#include <utility>

#include "platform/foundation/Action.h"
#include "platform/foundation/Arena.h"
#include "platform/foundation/Export.h"
#include "platform/layout/Geometry.h"
#include "platform/swiftui/Color.h"
#include "platform/swiftui/Font.h"
#include "platform/swiftui/Look.h"
#include "platform/swiftui/Node.h"
#include "platform/swiftui/PresentationDetent.h"
#include "platform/swiftui/State.h"
#include "platform/swiftui/Text.h"

namespace quorix::swiftui {

class View;

/// Any type with a body is a view.
template <class V>
concept HasBody = requires(const V& view) {
  { view.body() } -> std::convertible_to<View>;
};

/// A type that wraps other content: `View body(View content) const`.
template <class M>
concept ViewModifier = requires(const M& modifier, View content) {
  { modifier.body(content) } -> std::convertible_to<View>;
};

/// A piece of user interface, as an immutable value: cheap to copy, safe to keep. Modifiers return
/// a new view that wraps this one. Some modifiers apply to all views below (font, color, text case,
/// underline, strikethrough); of these the innermost wins. Main thread.
///
///     View padded = View(Text::verbatim("Fee")).padding(16);
class QUORIX_EXPORT View {
 public:
  /// Takes no space and shows nothing.
  View();
  View(Text text);  // NOLINT(google-explicit-constructor): a text is a view
  template <HasBody V>
  View(V component);  // NOLINT(google-explicit-constructor): any type with a body is a view

  explicit View(std::shared_ptr<const Node> node) : node_(std::move(node)) {}
  const std::shared_ptr<const Node>& node() const { return node_; }

  View textCase(TextCase value) const;
  View underline(bool active = true) const;
  View strikethrough(bool active = true) const;
  View font(Font font) const;
  View fontWeight(FontWeight weight) const;
  View foregroundColor(Color color) const;

  View padding(double length) const;
  View padding(layout::EdgeInsets insets) const;
  View padding(layout::Edges edges, double length) const;
  View frame(std::optional<double> width, std::optional<double> height,
             layout::Alignment alignment = {}) const;
  View frameMaxWidthInfinity(layout::Alignment alignment = {}) const;
  View fixedSize(bool horizontal, bool vertical) const;
  /// Makes an image fill its frame instead of keeping its natural size.
  View resizable() const;
  /// Takes the largest size that fits the proposal and keeps the aspect ratio of the natural size.
  View scaledToFit() const;
  /// Fills this view's frame behind it. Where the frame touches the edge of the safe area on one of
  /// `ignoresSafeAreaEdges`, the fill extends beyond it.
  View background(Color color, layout::Edges ignoresSafeAreaEdges = {}) const;
  /// Strokes the inside of this view's frame, `width` points wide, above the content.
  View border(Color color, double width = 1) const;
  /// Extends this view beyond the safe area on those of `edges` where it touches its edge.
  View edgesIgnoringSafeArea(layout::Edges edges) const;
  /// Puts `content` on top of this view, aligned in its frame.
  View overlay(layout::Alignment alignment, View content) const;

  View accessibilityElement(AccessibilityChildren children) const;
  View accessibilityAddTraits(AccessibilityTrait trait) const;
  View accessibilityLabel(Text label) const;
  View accessibilityHint(Text hint) const;
  View accessibilityHidden(bool hidden) const;
  /// Sets the default action of this element for assistive technology.
  View accessibilityAction(foundation::Action action) const;

  View onTapGesture(foundation::Action action) const;
  /// Runs `action` on a turn of the main queue each time the view comes on screen, unless it has
  /// left the screen by then.
  View task(TaskPriority priority, foundation::Action action) const;
  View sheet(Binding<bool> isPresented, View content) const;
  View presentationDetents(PresentationDetents detents) const;
  /// Calls `action` during layout with the view's size, whenever the size has changed.
  View onGeometryChange(std::function<void(layout::Size)> action) const;
  template <ViewModifier M>
  View modifier(M modifier) const;

 private:
  std::shared_ptr<const Node> node_;
};

/// A sheet that a view presents. If the user closes it, false is written through the binding.
struct Presentation {
  Binding<bool> isPresented;
  View content;
};

/// Makes a view with a node of type `Kind`, in the arena of the current evaluation.
template <class Kind, class... Arguments>
View makeView(Arguments&&... arguments) {
  const foundation::SharedIn<Kind> memory(foundation::Arena::current());
  return View(std::shared_ptr<const Node>(
      std::allocate_shared<Kind>(memory, std::forward<Arguments>(arguments)...)));
}

}  // namespace quorix::swiftui

#include "platform/swiftui/Component.h"
