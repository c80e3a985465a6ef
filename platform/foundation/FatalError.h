#pragma once

#include <string_view>

#include "platform/foundation/Export.h"

namespace quorix::foundation {

/// Stops the process: writes "<source>: Fatal error: <message>" to the standard error stream
/// (without the source when there is none) and aborts. For a broken build of the library, never for
/// bad input.
[[noreturn]] QUORIX_EXPORT void fatalError(std::string_view message, std::string_view source = {});

}  // namespace quorix::foundation
