#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quorix::foundation {

// Texts in UTF-8 by the rules of Unicode. A character is an extended grapheme cluster, what a
// reader takes for one. Any thread.

/// `text` in capital letters by the rules of `language` (a code such as "tr"; empty for the rules
/// of no language).
std::string uppercased(std::string_view text, std::string_view language);

/// The pieces of `text` between the occurrences of `separator`, empty ones included; the whole text
/// where the separator is empty or does not occur. The pieces view `text`.
///
/// Whole characters are compared, by canonical equivalence: a letter is not found in one that
/// carries an accent, and a composed letter is found in its decomposed form.
///
///     components("A 20% B", "20%")  // "A ", " B"
std::vector<std::string_view> components(std::string_view text, std::string_view separator);

/// The last end of a character of `text` at or before `offset`, in bytes; 0 if the first character
/// ends later.
std::size_t characterEndUpTo(std::string_view text, std::size_t offset);

}  // namespace quorix::foundation
