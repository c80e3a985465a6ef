#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quorix::foundation {

/// The alphabets that a text may be written in; `either` also takes the URL-safe "-" and "_" for
/// the standard "+" and "/".
enum class Base64Alphabet { standard, either };

/// The bytes that `text` spells in padded base64, or nothing. Strict: a character outside the
/// alphabet (a line break too) and missing, surplus or misplaced padding are refused; bits left
/// over before the padding are ignored. Any thread.
///
///     decodeBase64("AAE=")  // the bytes 0 and 1
std::optional<std::string> decodeBase64(std::string text,
                                        Base64Alphabet alphabet = Base64Alphabet::standard);

/// `bytes` in standard base64 with padding. Any thread.
std::string encodeBase64(std::string_view bytes);

}  // namespace quorix::foundation
