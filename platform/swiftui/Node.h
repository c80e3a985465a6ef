#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "platform/render/HostedContent.h"
#include "platform/swiftui/Modifiers.h"
#include "platform/swiftui/View.h"

namespace quorix::swiftui {

/// The node kinds: one closed set that evaluation and printing visit.
namespace nodes {

struct Empty {};
struct Text {
  swiftui::Text text;
};
struct Image {
  std::string name;
  foundation::Bundle::Ref bundle;
};
struct Represented {
  std::string_view name;
  std::function<std::shared_ptr<render::HostedContent>()> make;  ///< once for each place in a tree
  /// At each evaluation, the first included; may be empty.
  std::function<void(render::HostedContent&)> update = {};
};
struct Spacer {
  std::optional<double> minLength;
};
struct Divider {};
struct Stack {
  layout::Axis axis;
  layout::Alignment alignment;  ///< only the part across the axis counts
  std::optional<double> spacing;
  std::vector<View> children;
};
struct Group {
  std::vector<View> children;
};
struct Conditional {
  bool condition;
  View content;
};
struct Lazy {
  std::function<View()> make;
};
struct Custom {
  std::shared_ptr<const Component> component;
};
struct Modified {
  View content;
  Modifier modifier;
};

}  // namespace nodes

struct Node {
  std::variant<nodes::Empty, nodes::Text, nodes::Image, nodes::Represented, nodes::Spacer,
               nodes::Divider, nodes::Stack, nodes::Group, nodes::Conditional, nodes::Lazy,
               nodes::Custom, nodes::Modified>
      kind;
};

template <class Kind>
View makeView(Kind kind) {
  return View(std::make_shared<const Node>(Node{std::move(kind)}));
}

}  // namespace quorix::swiftui
