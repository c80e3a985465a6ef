#pragma once

#include <optional>
#include <string>

namespace quorix::foundation {

/// Decodes `text`, padded base64 in the standard or the URL-safe alphabet ("-" and "_" for "+" and
/// "/"), even mixed. Strict: absent for any other character (a line break too) and for missing,
/// surplus or misplaced padding. Ignores bits left over before the padding. Any thread.
///
///     decodeBase64("AAE=")  // the bytes 0 and 1
std::optional<std::string> decodeBase64(std::string text);

}  // namespace quorix::foundation
