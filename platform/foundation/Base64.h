#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quorix::foundation {

/// The bytes that `text` spells in standard, padded base64, or nothing. Strict: a character outside
/// the alphabet (a line break too) and missing, surplus or misplaced padding are refused; bits left
/// over before the padding are ignored. Any thread.
///
///     decodeBase64("AAE=")  // the bytes 0 and 1
std::optional<std::string> decodeBase64(std::string_view text);

/// `bytes` in standard base64 with padding. Any thread.
std::string encodeBase64(std::string_view bytes);

}  // namespace quorix::foundation
