#include "platform/swiftui/View.h"

#include <utility>

#include "platform/swiftui/Node.h"

namespace quorix::swiftui {
namespace {

View wrap(const View& content, Modifier modifier) {
  return makeView(nodes::Modified{content, std::move(modifier)});
}

}  // namespace

View::View() {
  static const auto empty = std::make_shared<const Node>();
  node_ = empty;
}

View::View(Text text) : View(makeView(nodes::Text{std::move(text)})) {}

View::View(std::shared_ptr<const Component> component)
    : View(makeView(nodes::Custom{std::move(component)})) {}

View View::textCase(TextCase value) const { return wrap(*this, modifiers::Case{value}); }

View View::underline(bool active) const { return wrap(*this, modifiers::Underline{active}); }

View View::strikethrough(bool active) const {
  return wrap(*this, modifiers::Strikethrough{active});
}

View View::font(Font font) const { return wrap(*this, modifiers::FontChoice{std::move(font)}); }

View View::fontWeight(FontWeight weight) const { return wrap(*this, modifiers::Weight{weight}); }

View View::foregroundColor(Color color) const {
  return wrap(*this, modifiers::ForegroundColor{std::move(color)});
}

View View::padding(double length) const { return padding({length, length, length, length}); }

View View::padding(layout::EdgeInsets insets) const {
  return wrap(*this, modifiers::Padding{insets});
}

View View::padding(layout::Edges edges, double length) const {
  return wrap(*this, modifiers::EdgePadding{edges, length});
}

View View::frame(std::optional<double> width, std::optional<double> height,
                 layout::Alignment alignment) const {
  return wrap(*this, modifiers::FixedFrame{width, height, alignment});
}

View View::frameMaxWidthInfinity(layout::Alignment alignment) const {
  return wrap(*this, modifiers::MaxWidthFrame{alignment});
}

View View::fixedSize(bool horizontal, bool vertical) const {
  return wrap(*this, modifiers::FixedSize{horizontal, vertical});
}

View View::resizable() const { return wrap(*this, modifiers::Resizable{}); }

View View::scaledToFit() const { return wrap(*this, modifiers::ScaledToFit{}); }

View View::background(Color color, layout::Edges ignoresSafeAreaEdges) const {
  return wrap(*this, modifiers::Background{std::move(color), ignoresSafeAreaEdges});
}

View View::border(Color color, double width) const {
  return wrap(*this, modifiers::Border{std::move(color), width});
}

View View::edgesIgnoringSafeArea(layout::Edges edges) const {
  return wrap(*this, modifiers::EdgesIgnoringSafeArea{edges});
}

View View::overlay(layout::Alignment alignment, View content) const {
  return wrap(*this, modifiers::Overlay{alignment, std::move(content)});
}

View View::accessibilityElement(AccessibilityChildren children) const {
  return wrap(*this, modifiers::AccessibilityElement{children});
}

View View::accessibilityAddTraits(AccessibilityTrait trait) const {
  return wrap(*this, modifiers::AddTraits{trait});
}

View View::accessibilityLabel(Text label) const {
  return wrap(*this, modifiers::Label{std::move(label)});
}

View View::accessibilityHint(Text hint) const {
  return wrap(*this, modifiers::Hint{std::move(hint)});
}

View View::accessibilityHidden(bool hidden) const { return wrap(*this, modifiers::Hidden{hidden}); }

View View::accessibilityAction(std::function<void()> action) const {
  return wrap(*this, modifiers::AccessibilityAction{std::move(action)});
}

View View::onTapGesture(std::function<void()> action) const {
  return wrap(*this, modifiers::TapGesture{std::move(action)});
}

View View::task(TaskPriority priority, std::function<void()> action) const {
  return wrap(*this, modifiers::Task{priority, std::move(action)});
}

View View::sheet(Binding<bool> isPresented, View content) const {
  return wrap(*this, modifiers::Sheet{std::move(isPresented), std::move(content)});
}

View View::presentationDetents(PresentationDetents detents) const {
  return wrap(*this, modifiers::Detents{std::move(detents)});
}

View View::onGeometryChange(std::function<void(layout::Size)> action) const {
  return wrap(*this, modifiers::GeometryChange{std::move(action)});
}

}  // namespace quorix::swiftui
