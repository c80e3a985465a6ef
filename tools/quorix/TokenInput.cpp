#include "tools/quorix/TokenInput.h"

#include <iostream>

#include "QuorixWidgets/score/ScoreWidgetViewModel.h"

namespace quorix::tool {

std::variant<std::string, Failure> tokenText(std::string_view argument) {
  if (argument != "-") return std::string(argument);
  std::string input(longestToken + 1, '\0');
  (std::cin >> std::ws).read(input.data(), static_cast<std::streamsize>(input.size()));
  input.resize(static_cast<std::size_t>(std::cin.gcount()));
  if (input.size() > longestToken) return refused(TokenRefusal::tooLong);
  input.resize(input.find_last_not_of(" \t\r\n") + 1);
  return input;
}

Failure refused(TokenRefusal refusal) {
  return Failure::refused("the token is refused: " + std::string(describe(refusal)));
}

std::optional<Failure> notShown(const TokenData& figures) {
  if (hasReturnRate(figures.score)) return std::nullopt;
  return Failure::refused(
      "the score is beyond all reckoning, so a widget for this token is empty: nothing to show");
}

}  // namespace quorix::tool
