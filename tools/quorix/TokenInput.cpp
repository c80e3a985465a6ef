#include "tools/quorix/TokenInput.h"

#include <iostream>
#include <iterator>

namespace quorix::tool {

std::string tokenText(std::string_view argument) {
  if (argument != "-") return std::string(argument);
  constexpr std::string_view blanks = " \t\r\n";
  const std::string input{std::istreambuf_iterator<char>(std::cin), {}};
  const std::size_t first = input.find_first_not_of(blanks);
  if (first == std::string::npos) return {};
  return input.substr(first, input.find_last_not_of(blanks) - first + 1);
}

Failure refused(TokenRefusal refusal) {
  return Failure::refused("the token is refused: " + std::string(describe(refusal)));
}

}  // namespace quorix::tool
