#pragma once

#include <string>
#include <string_view>

#include "QuorixWidgets/data/TokenData.h"

namespace quorix::examples {

/// What demo tokens are signed with unless someone says otherwise. The widgets never check a
/// signature; a real secret stays with the service that issues tokens.
inline constexpr std::string_view demoSecret = "quorix-demo";

/// A token that carries `figures`, signed with HS256 under `secret` as the widget service would: a
/// stand-in for that service in demos and tools. The same figures and secret give the same token.
/// A score that is not finite can't be written down and gives a token that carries none. Any
/// thread.
///
///     mintToken({0.82, "EUR", 499, 299})  // "eyJhbGciOiJIUzI1NiIsInR5cCI6IkpXVCJ9.eyJkYXRh…"
std::string mintToken(const TokenData& figures, std::string_view secret = demoSecret);

}  // namespace quorix::examples
