#pragma once

#include <string_view>
#include <vector>

namespace quorix::foundation {

/// The non-empty pieces of the UTF-8 `text` between the characters equal to `separator` (printable
/// ASCII). A character is what a reader takes for one (an extended grapheme cluster): a separator
/// that carries a combining mark is another character and does not split. The pieces view `text`.
/// Any thread.
///
///     splitCharacters("a..b", '.')  // "a", "b"
std::vector<std::string_view> splitCharacters(std::string_view text, char separator);

}  // namespace quorix::foundation
