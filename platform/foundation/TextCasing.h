#pragma once

#include <string>
#include <string_view>

namespace quorix::foundation {

/// `text` (UTF-8) in capital letters by the rules of `language` (a code such as "tr"; empty for the
/// rules that hold everywhere).
std::string uppercased(std::string_view text, std::string_view language);
std::string lowercased(std::string_view text, std::string_view language);

}  // namespace quorix::foundation
