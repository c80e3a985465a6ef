#pragma once

#include <cstdint>

#include "platform/foundation/Error.h"
#include "platform/foundation/Export.h"

namespace quorix {

/// Why a face of the library could not be used. Comparable and hashable (`std::hash`).
enum class FontError : std::uint8_t {
  /// The library's bundle has no such face, or the file is not a font.
  failedToRegisterFont,
};

/// `error` as a general error: domain "QuorixWidgets.FontError", code 0 and a text for developers.
QUORIX_EXPORT foundation::Error describe(FontError error);

}  // namespace quorix
