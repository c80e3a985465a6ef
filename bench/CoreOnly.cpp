// The smallest program that uses only the widgets' core: prints one row as a tree. Measured for its
// size.

#include <cstdio>

#include "QuorixWidgets/score/ScoreWidgetBuilder.h"
#include "platform/swiftui/TreePrinter.h"

int main(int argc, char** argv) {
  const quorix::swiftui::View row = quorix::ScoreWidgetBuilder::buildSwiftUIScoreWidgetView(
      "my-shop", "en", argc > 1 ? argv[1] : "", {std::nullopt, std::nullopt});
  std::puts(quorix::swiftui::printTree(row).c_str());
}
