#pragma once

#include <cstdint>

#include "platform/foundation/Error.h"
#include "platform/foundation/Export.h"

namespace quorix {

/// Why a face of the library could not be used. Comparable and hashable (`std::hash`).
enum class FontError : std::uint8_t {
  /// The library's bundle has no such face, the file is not a font, or the name is taken.
  failedToRegisterFont,
};

/// What `error` says of itself: domain "QuorixWidgets.FontError", code 0 and a text for developers.
QUORIX_EXPORT foundation::Error describe(FontError error);

}  // namespace quorix
