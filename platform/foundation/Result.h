#pragma once

#include <variant>

#include "platform/foundation/Error.h"

namespace quorix::foundation {

/// A value, or the reason why there is none.
template <class T>
using Result = std::variant<T, Error>;

}  // namespace quorix::foundation
