#include "platform/swiftui/TreePrinter.h"

#include <string_view>

#include "platform/swiftui/Component.h"
#include "platform/swiftui/Descriptions.h"
#include "platform/swiftui/Node.h"

namespace quorix::swiftui {
namespace {

class Printer {
 public:
  std::string text;

  void print(const View& view, int depth) {
    std::visit([&](const auto& node) { element(node, depth); }, view.node()->kind);
  }

 private:
  void print(const Text& part, int depth) {
    line(depth, part.parts().empty() ? "Text(" + describe(part) + ")" : "Text");
    for (const Text& below : part.parts()) print(below, depth + 1);
    for (const TextModifier& own : part.modifiers()) {
      std::visit([&](const auto& modifier) { this->modifier(modifier, depth + 2); }, own);
    }
  }

  void line(int depth, std::string_view content) {
    text.append(static_cast<std::size_t>(depth) * 2, ' ');
    text += content;
    text += '\n';
  }

  void children(const std::vector<View>& views, int depth) {
    for (const View& view : views) print(view, depth);
  }

  void element(const nodes::Empty&, int depth) { line(depth, "EmptyView"); }
  void element(const nodes::Text& node, int depth) { print(node.text, depth); }
  void element(const nodes::Image& node, int depth) {
    line(depth, "Image(" + quoted(node.name) + ")");
  }
  void element(const nodes::Represented& node, int depth) { line(depth, node.name); }
  void element(const nodes::Spacer& node, int depth) {
    line(depth, node.minLength ? "Spacer(minLength: " + number(*node.minLength) + ")" : "Spacer");
  }
  void element(const nodes::Divider&, int depth) { line(depth, "Divider"); }
  void element(const nodes::Stack& node, int depth) {
    const bool horizontal = node.axis == layout::Axis::horizontal;
    const std::string_view alignment =
        horizontal ? nameOf(node.alignment.vertical) : nameOf(node.alignment.horizontal);
    line(depth, std::string(horizontal ? "HStack" : "VStack") +
                    "(alignment: " + std::string(alignment) +
                    ", spacing: " + (node.spacing ? number(*node.spacing) : "default") + ")");
    children(node.children, depth + 1);
  }
  void element(const nodes::Group& node, int depth) { children(node.children, depth); }
  void element(const nodes::Conditional& node, int depth) {
    line(depth, "Conditional(" + std::string(nameOf(node.condition)) + ")");
    print(node.content, depth + 1);
  }
  void element(const nodes::Lazy& node, int depth) { print(node.make(), depth); }
  void element(const nodes::Custom& node, int depth) {
    StateSlots states;
    const View body = node.component->body(states);
    if (!node.component->isModifier()) line(depth, node.component->name());
    print(body, node.component->isModifier() ? depth : depth + 1);
  }
  void element(const nodes::Modified& node, int depth) {
    if (std::holds_alternative<modifiers::Button>(node.modifier)) {
      line(depth, "Button");
      return print(node.content, depth + 1);
    }
    print(node.content, depth);
    std::visit([&](const auto& modifier) { this->modifier(modifier, depth + 2); }, node.modifier);
  }

  void modifier(const modifiers::Case& m, int depth) {
    line(depth, m.value == TextCase::uppercase ? ".textCase(uppercase)" : ".textCase(lowercase)");
  }
  void modifier(const modifiers::Underline& m, int depth) {
    line(depth, ".underline(" + std::string(nameOf(m.active)) + ", pattern: solid)");
  }
  void modifier(const modifiers::Strikethrough& m, int depth) {
    line(depth, ".strikethrough(" + std::string(nameOf(m.active)) + ")");
  }
  void modifier(const modifiers::FontChoice& m, int depth) {
    line(depth, ".font(" + describe(m.font) + ")");
  }
  void modifier(const modifiers::Weight& m, int depth) {
    line(depth, ".fontWeight(" + std::string(nameOf(m.weight)) + ")");
  }
  void modifier(const modifiers::Bold&, int depth) { line(depth, ".bold()"); }
  void modifier(const modifiers::ForegroundColor& m, int depth) {
    line(depth, ".foregroundColor(" + m.color.description() + ")");
  }
  void modifier(const modifiers::Padding& m, int depth) {
    line(depth, ".padding(" + describe(m.insets) + ")");
  }
  void modifier(const modifiers::EdgePadding& m, int depth) {
    line(depth, ".padding(" + describe(m.edges) + ", " + number(m.length) + ")");
  }
  void modifier(const modifiers::FixedFrame& m, int depth) {
    std::string bounds;
    if (m.width) bounds += "width: " + number(*m.width) + ", ";
    if (m.height) bounds += "height: " + number(*m.height) + ", ";
    line(depth, ".frame(" + bounds + "alignment: " + nameOf(m.alignment) + ")");
  }
  void modifier(const modifiers::MaxWidthFrame& m, int depth) {
    line(depth, ".frame(maxWidth: infinity, alignment: " + nameOf(m.alignment) + ")");
  }
  void modifier(const modifiers::FixedSize& m, int depth) {
    line(depth, ".fixedSize(horizontal: " + std::string(nameOf(m.horizontal)) +
                    ", vertical: " + std::string(nameOf(m.vertical)) + ")");
  }
  void modifier(const modifiers::Resizable&, int depth) { line(depth, ".resizable(stretch)"); }
  void modifier(const modifiers::ScaledToFit&, int depth) { line(depth, ".scaledToFit()"); }
  void modifier(const modifiers::Background& m, int depth) {
    const bool ignores = m.ignoresSafeAreaEdges != layout::Edges{};
    line(depth, ".background(" + m.color.description() +
                    (ignores ? ", ignoresSafeAreaEdges: " + describe(m.ignoresSafeAreaEdges) : "") +
                    ")");
  }
  void modifier(const modifiers::Border& m, int depth) {
    line(depth, ".border(" + m.color.description() + ", width: " + number(m.width) + ")");
  }
  void modifier(const modifiers::EdgesIgnoringSafeArea& m, int depth) {
    line(depth, ".edgesIgnoringSafeArea(" + describe(m.edges) + ")");
  }
  void modifier(const modifiers::Overlay& m, int depth) {
    line(depth, ".overlay(alignment: " + nameOf(m.alignment) + ")");
    print(m.content, depth + 1);
  }
  void modifier(const modifiers::AccessibilityElement&, int depth) {
    line(depth, ".accessibilityElement(children: ignore)");
  }
  void modifier(const modifiers::AddTraits& m, int depth) {
    const bool isButton = m.trait == AccessibilityTrait::isButton;
    line(depth,
         isButton ? ".accessibilityAddTraits(isButton)" : ".accessibilityAddTraits(isHeader)");
  }
  void modifier(const modifiers::Label& m, int depth) {
    line(depth, ".accessibilityLabel(" + describe(m.text) + ")");
  }
  void modifier(const modifiers::Hint& m, int depth) {
    line(depth, ".accessibilityHint(" + describe(m.text) + ")");
  }
  void modifier(const modifiers::Hidden& m, int depth) {
    line(depth, ".accessibilityHidden(" + std::string(nameOf(m.hidden)) + ")");
  }
  void modifier(const modifiers::AccessibilityAction&, int depth) {
    line(depth, ".accessibilityAction(default)");
  }
  void modifier(const modifiers::TapGesture&, int depth) { line(depth, ".onTapGesture(count: 1)"); }
  void modifier(const modifiers::Button&, int) {}  // an element of its own
  void modifier(const modifiers::Task&, int depth) {
    line(depth, ".task(priority: userInitiated)");
  }
  void modifier(const modifiers::Sheet& m, int depth) {
    line(depth, ".sheet(isPresented: " + std::string(nameOf(m.isPresented.get())) + ")");
    print(m.content, depth + 1);
  }
  void modifier(const modifiers::Detents& m, int depth) {
    line(depth, ".presentationDetents(" + describe(m.detents) + ")");
  }
  void modifier(const modifiers::GeometryChange&, int depth) {
    line(depth, ".onGeometryChange(size)");
  }
};

}  // namespace

std::string printTree(const View& view) {
  Printer printer;
  printer.print(view, 0);
  return std::move(printer.text);
}

}  // namespace quorix::swiftui
