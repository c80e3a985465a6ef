#pragma once

#include <functional>
#include <optional>
#include <variant>

#include "platform/layout/Geometry.h"
#include "platform/swiftui/TextModifiers.h"
#include "platform/swiftui/View.h"

namespace quorix::swiftui {

/// The modifiers, as the closed set that evaluation and printing visit.
namespace modifiers {

struct Case {
  TextCase value;
};
struct Strikethrough {
  bool active;
};
struct Padding {
  layout::EdgeInsets insets;
};
struct EdgePadding {
  layout::Edges edges;
  double length;
};
struct FixedFrame {
  std::optional<double> width;
  std::optional<double> height;
  layout::Alignment alignment;
};
struct MaxWidthFrame {
  layout::Alignment alignment;
};
struct FixedSize {
  bool horizontal;
  bool vertical;
};
struct Resizable {};
struct ScaledToFit {};
struct Background {
  Color color;
  layout::Edges ignoresSafeAreaEdges;
};
struct Border {
  Color color;
  double width;
};
struct EdgesIgnoringSafeArea {
  layout::Edges edges;
};
struct Overlay {
  layout::Alignment alignment;
  View content;
};
struct AccessibilityElement {
  AccessibilityChildren children;
};
struct AddTraits {
  AccessibilityTrait trait;
};
struct Label {
  Text text;
};
struct Hint {
  Text text;
};
struct Hidden {
  bool hidden;
};
struct AccessibilityAction {
  std::function<void()> action;
};
struct TapGesture {
  std::function<void()> action;
};
/// The content is the button's label.
struct Button {
  std::function<void()> action;
};
struct Task {
  TaskPriority priority;
  std::function<void()> action;
};
struct Sheet {
  Binding<bool> isPresented;
  View content;
};
struct Detents {
  PresentationDetents detents;
};
struct GeometryChange {
  std::function<void(layout::Size)> action;
};

}  // namespace modifiers

using Modifier = std::variant<
    modifiers::Case, modifiers::Underline, modifiers::Strikethrough, modifiers::FontChoice,
    modifiers::Weight, modifiers::Bold, modifiers::ForegroundColor, modifiers::Padding,
    modifiers::EdgePadding, modifiers::FixedFrame, modifiers::MaxWidthFrame, modifiers::FixedSize,
    modifiers::Resizable, modifiers::ScaledToFit, modifiers::Background, modifiers::Border,
    modifiers::EdgesIgnoringSafeArea, modifiers::Overlay, modifiers::AccessibilityElement,
    modifiers::AddTraits, modifiers::Label, modifiers::Hint, modifiers::Hidden,
    modifiers::AccessibilityAction, modifiers::TapGesture, modifiers::Button, modifiers::Task,
    modifiers::Sheet, modifiers::Detents, modifiers::GeometryChange>;

}  // namespace quorix::swiftui
