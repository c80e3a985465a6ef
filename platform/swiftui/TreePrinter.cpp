#include "platform/swiftui/TreePrinter.h"

#include <utility>

#include "platform/swiftui/Node.h"

namespace quorix::swiftui {
namespace {

std::string_view textStyleName(TextStyle style) {
  constexpr std::string_view names[] = {"largeTitle", "title",   "title2",  "title3",
                                        "headline",   "body",    "callout", "subheadline",
                                        "footnote",   "caption", "caption2"};
  return names[static_cast<int>(style)];
}

void appendItem(std::string& list, const std::string& item) {
  if (!list.empty()) list += ", ";
  list += item;
}

}  // namespace

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

std::string describe(const Font& font) {
  if (font.name().empty()) return "system";
  const std::string name = inQuotes(font.name());
  if (!font.scales()) return name + ", fixedSize: " + number(font.size());
  return name + ", size: " + number(font.size()) +
         ", relativeTo: " + std::string(textStyleName(font.textStyle()));
}

std::string describe(const Text& text) {
  if (!text.parts().empty()) return inQuotes(text.resolved());
  if (!text.isLocalized()) return inQuotes(text.key());
  std::string result = "key: " + inQuotes(text.key());
  for (const std::string& argument : text.arguments()) result += ", " + inQuotes(argument);
  return result;
}

std::string describe(const PresentationDetents& detents) {
  std::string result;
  for (const PresentationDetent& detent : detents) {
    appendItem(result, detent.points() ? "height(" + number(*detent.points()) + ")" : "medium");
  }
  return "[" + result + "]";
}

std::string describe(const layout::EdgeInsets& insets) {
  const auto& [top, leading, bottom, trailing] = insets;
  if (top == leading && top == bottom && top == trailing) return number(top);
  std::string result;
  if (top != 0) appendItem(result, "top: " + number(top));
  if (leading != 0) appendItem(result, "leading: " + number(leading));
  if (bottom != 0) appendItem(result, "bottom: " + number(bottom));
  if (trailing != 0) appendItem(result, "trailing: " + number(trailing));
  return result;
}

std::string describe(layout::Edges edges) {
  if (edges == layout::Edges::all()) return "all";
  if (edges == layout::Edges::vertical()) return "vertical";
  std::string result;
  if (edges.top) appendItem(result, "top");
  if (edges.leading) appendItem(result, "leading");
  if (edges.bottom) appendItem(result, "bottom");
  if (edges.trailing) appendItem(result, "trailing");
  return result;
}

std::string_view nameOf(bool value) { return value ? "true" : "false"; }

void TreePrinter::print(const View& view, int depth) { view.node()->print(*this, depth); }

void TreePrinter::line(int depth, std::string_view content) {
  text.append(static_cast<std::size_t>(depth) * 2, ' ');
  text += content;
  text += '\n';
}

std::string printTree(const View& view) {
  TreePrinter printer;
  printer.print(view, 0);
  return std::move(printer.text);
}

}  // namespace quorix::swiftui
