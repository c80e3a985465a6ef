#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quorix::foundation {

// Texts in UTF-8 by the rules of Unicode. A character is an extended grapheme cluster: what a
// reader sees as one character. Any thread.

/// `text` in capital letters by the rules of `language` (a code such as "tr"; empty for the default
/// rules).
std::string uppercased(std::string_view text, std::string_view language);

/// The pieces of `text` between the occurrences of `separator`, empty ones included. The whole text
/// if the separator is empty or does not occur. The pieces view `text`.
///
/// Compares whole characters by canonical equivalence: "a" is not found in "á", and a composed
/// letter is found in its decomposed form.
///
///     components("A 20% B", "20%")  // "A ", " B"
std::vector<std::string_view> components(std::string_view text, std::string_view separator);

/// The end of the last character of `text` that ends at or before `offset`, in bytes; 0 without
/// one.
std::size_t characterEndUpTo(std::string_view text, std::size_t offset);

}  // namespace quorix::foundation
