#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "QuorixWidgets/data/TokenData.h"
#include "tools/quorix/Arguments.h"
#include "tools/quorix/Failure.h"

namespace quorix::tool {

/// The token operand of all commands.
inline constexpr Option tokenOperand{
    "TOKEN", "", "The shopper's token, or - to read it from the standard input."};

/// The token in `argument`, or in the standard input if it is "-", without surrounding blanks and
/// line ends. Fails if the input is longer than any token.
std::variant<std::string, Failure> tokenText(std::string_view argument);

/// The failure for a token that cannot be used.
Failure refused(TokenRefusal refusal);

/// The failure if no widget is shown for `figures`.
std::optional<Failure> notShown(const TokenData& figures);

}  // namespace quorix::tool
