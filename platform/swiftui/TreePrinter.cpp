#include "platform/swiftui/TreePrinter.h"

#include <charconv>
#include <string_view>

#include "platform/swiftui/Component.h"
#include "platform/swiftui/Node.h"

namespace quorix::swiftui {
namespace {

std::string number(double value) {
  if (value == layout::infinity) return "infinity";
  char digits[32];
  const auto end = std::to_chars(digits, digits + sizeof digits, value).ptr;
  return {digits, end};
}

std::string quoted(std::string_view text) {
  std::string result = "\"";
  for (const char c : text) {
    if (c == '"' || c == '\\') result += '\\';
    result += c;
  }
  return result + '"';
}

std::string_view nameOf(layout::HorizontalAlignment alignment) {
  constexpr std::string_view names[] = {"leading", "center", "trailing"};
  return names[static_cast<int>(alignment)];
}

std::string_view nameOf(layout::VerticalAlignment alignment) {
  constexpr std::string_view names[] = {"top", "center", "bottom"};
  return names[static_cast<int>(alignment)];
}

std::string nameOf(layout::Alignment alignment) {
  using layout::HorizontalAlignment;
  using layout::VerticalAlignment;
  const std::string_view horizontal = nameOf(alignment.horizontal);
  if (alignment.vertical == VerticalAlignment::center) return std::string(horizontal);
  std::string name(nameOf(alignment.vertical));
  if (alignment.horizontal == HorizontalAlignment::center) return name;
  return name + (alignment.horizontal == HorizontalAlignment::leading ? "Leading" : "Trailing");
}

std::string_view nameOf(TextStyle style) {
  constexpr std::string_view names[] = {"largeTitle", "title",   "title2",  "title3",
                                        "headline",   "body",    "callout", "subheadline",
                                        "footnote",   "caption", "caption2"};
  return names[static_cast<int>(style)];
}

std::string describe(const Font& font) {
  if (font.name().empty()) return "system";
  const std::string name = quoted(font.name());
  if (!font.scales()) return name + ", fixedSize: " + number(font.size());
  return name + ", size: " + number(font.size()) +
         ", relativeTo: " + std::string(nameOf(font.textStyle()));
}

std::string describe(const Text& text) {
  if (!text.isLocalized()) return quoted(text.key());
  std::string result = "key: " + quoted(text.key());
  for (const std::string& argument : text.arguments()) result += ", " + quoted(argument);
  return result;
}

std::string describe(const PresentationDetents& detents) {
  std::string result;
  for (const PresentationDetent& detent : detents) {
    if (!result.empty()) result += ", ";
    result += detent.points() ? "height(" + number(*detent.points()) + ")" : "medium";
  }
  return "[" + result + "]";
}

std::string describe(const layout::EdgeInsets& insets) {
  const auto& [top, leading, bottom, trailing] = insets;
  if (top == leading && top == bottom && top == trailing) return number(top);
  std::string result;
  const auto edge = [&](std::string_view name, double length) {
    if (length == 0) return;
    if (!result.empty()) result += ", ";
    result += std::string(name) + ": " + number(length);
  };
  edge("top", top);
  edge("leading", leading);
  edge("bottom", bottom);
  edge("trailing", trailing);
  return result;
}

std::string_view nameOf(bool value) { return value ? "true" : "false"; }

class Printer {
 public:
  std::string text;

  void print(const View& view, int depth) {
    std::visit([&](const auto& node) { element(node, depth); }, view.node()->kind);
  }

 private:
  void line(int depth, std::string_view content) {
    text.append(static_cast<std::size_t>(depth) * 2, ' ');
    text += content;
    text += '\n';
  }

  void children(const std::vector<View>& views, int depth) {
    for (const View& view : views) print(view, depth);
  }

  void element(const nodes::Empty&, int depth) { line(depth, "EmptyView"); }
  void element(const nodes::Text& node, int depth) {
    line(depth, "Text(" + describe(node.text) + ")");
  }
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
  void modifier(const modifiers::ForegroundColor& m, int depth) {
    line(depth, ".foregroundColor(" + m.color.description() + ")");
  }
  void modifier(const modifiers::Padding& m, int depth) {
    line(depth, ".padding(" + describe(m.insets) + ")");
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
