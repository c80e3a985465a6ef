#pragma once

#include <string_view>
#include <vector>

namespace quorix::foundation {

/// The pieces of the UTF-8 `text` between the occurrences of `separator`, empty ones included; the
/// whole text where the separator is empty or does not occur.
///
/// Characters, not bytes, are compared: what a reader takes for one (an extended grapheme cluster),
/// equal when canonically equivalent. A letter alone is thus not found in one that carries an
/// accent, and a composed letter is found in its decomposed form. The pieces view `text`, as it is
/// spelled there. Any thread.
///
///     components("A 20% B", "20%")  // "A ", " B"
std::vector<std::string_view> components(std::string_view text, std::string_view separator);

}  // namespace quorix::foundation
