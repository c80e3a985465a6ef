#pragma once

#include <optional>
#include <string>

#include "QuorixWidgets/data/TokenData.h"
#include "tools/quorix/CommandLine.h"

namespace quorix::tool {

/// The token operand of all commands. Replace "-" in `token` with `readTokenInput`.
Option tokenOperand(std::string& token);

/// If `token` is "-", replaces it with the standard input, without surrounding blanks and line
/// ends. Fails if the input is longer than any token.
std::optional<Failure> readTokenInput(std::string& token);

/// The failure for a token that cannot be used.
Failure refused(TokenRefusal refusal);

/// The failure if no widget is shown for `figures`.
std::optional<Failure> notShown(const TokenData& figures);

}  // namespace quorix::tool
