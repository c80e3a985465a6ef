// A program without Qt: the figures of a token, and the row that shows them.
#include <QuorixWidgets/data/TokenData.h>
#include <QuorixWidgets/score/ScoreWidgetBuilder.h>
#include <platform/swiftui/TreePrinter.h>

#include <iostream>

#include "../Token.h"

int main() {
  const auto figures = quorix::parseTokenData(shopperToken);
  const auto row = quorix::ScoreWidgetBuilder::buildSwiftUIScoreWidgetView(
      "my-shop", "en", shopperToken, {std::nullopt, std::nullopt});
  const std::string tree = quorix::swiftui::printTree(row);
  std::cout << tree << '\n';
  const bool right = figures && figures->currency == "EUR" && figures->returnsFee == 600 &&
                     tree.find("3.00") != std::string::npos;
  return right ? 0 : 1;
}
