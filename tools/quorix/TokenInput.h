#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "QuorixWidgets/data/TokenData.h"
#include "tools/quorix/Arguments.h"
#include "tools/quorix/Failure.h"

namespace quorix::tool {

/// How every command takes a token.
inline constexpr Option tokenOperand{
    "TOKEN", "", "The shopper's token, or - to read it from the standard input."};

/// The token that `argument` is, or for "-" the one on the standard input, without the blanks and
/// line ends around it. Input that is longer than any token is a failure.
std::variant<std::string, Failure> tokenText(std::string_view argument);

/// The failure that says why a token can't be used.
Failure refused(TokenRefusal refusal);

/// The failure that says why no widget is shown for `figures`, if none is.
std::optional<Failure> notShown(const TokenData& figures);

}  // namespace quorix::tool
