#pragma once

#include <span>
#include <string>
#include <string_view>

namespace quorix::tool {

/// "a, b or c".
std::string listed(std::span<const std::string_view> names);

/// `; did you mean "dark"?` for the entry of `names` that `word` probably misspells; empty if none
/// is similar.
std::string didYouMean(std::string_view word, std::span<const std::string_view> names);

}  // namespace quorix::tool
