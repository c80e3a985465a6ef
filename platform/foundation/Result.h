#pragma once

#include <variant>

#include "platform/foundation/Error.h"

namespace quorix::foundation {

/// A value, or the error that prevented it.
template <class T, class E = Error>
using Result = std::variant<T, E>;

}  // namespace quorix::foundation
