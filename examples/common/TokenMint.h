#pragma once

#include <string>
#include <string_view>

#include "QuorixWidgets/data/TokenData.h"

namespace quorix::examples {

/// The default secret of demo tokens. The widgets never check signatures. A real secret stays with
/// the service that issues tokens.
inline constexpr std::string_view demoSecret = "quorix-demo";

/// A token with `figures`, signed with HS256 and `secret`. Replaces the widget service in demos and
/// tools. The same figures and secret give the same token. If the score is not finite, the token
/// has no score. Any thread.
///
///     mintToken({0.82, "EUR", 499, 299})  // "eyJhbGciOiJIUzI1NiIsInR5cCI6IkpXVCJ9.eyJkYXRh…"
std::string mintToken(const TokenData& figures, std::string_view secret = demoSecret);

}  // namespace quorix::examples
