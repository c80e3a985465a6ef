#include "platform/swiftui/TreePrinter.h"

#include <utility>

#include "platform/swiftui/Node.h"

namespace quorix::swiftui {

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
