#include "tools/quorix/TokenInput.h"

#include <iostream>

#include "tools/quorix/InputFile.h"

namespace quorix::tool {

std::variant<std::string, Failure> tokenText(std::string_view argument) {
  if (argument != "-") return std::string(argument);
  constexpr std::string_view blanks = " \t\r\n";
  std::string input(largestInput + 1, '\0');
  std::cin.read(input.data(), static_cast<std::streamsize>(input.size()));
  input.resize(static_cast<std::size_t>(std::cin.gcount()));
  if (input.size() > largestInput) return Failure::refused("the token is over 64 MB");
  const std::size_t first = input.find_first_not_of(blanks);
  if (first == std::string::npos) return std::string();
  return input.substr(first, input.find_last_not_of(blanks) - first + 1);
}

Failure refused(TokenRefusal refusal) {
  return Failure::refused("the token is refused: " + std::string(describe(refusal)));
}

}  // namespace quorix::tool
