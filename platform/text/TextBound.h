#pragma once

#include <cstddef>
#include <string>

#include "platform/text/AttributedText.h"

namespace quorix::text {

// Limits for texts that are shown or spoken, in letters of Latin, Greek or Cyrillic script. Any
// other code point counts as three, because its shaping takes longer. The longest of the widgets'
// own texts have 190 letters, and 40 in a row.

inline constexpr std::size_t mostOfText = 1800;
/// For a text beside other texts.
inline constexpr std::size_t mostInRow = 300;

/// Cuts `utf8` to `most` letters, the ellipsis included, between two grapheme clusters. Returns
/// shorter texts unchanged. The length of the part that is cut off does not change the cost. Any
/// thread.
///
///     bounded("abcdefg", 6)  // "abc…"
std::string bounded(std::string utf8, std::size_t most = mostOfText);

/// Cuts `text` to `most` letters in all its runs together. Any thread.
void bound(AttributedText& text, std::size_t most = mostOfText);

}  // namespace quorix::text
