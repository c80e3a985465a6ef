#pragma once

#include "platform/foundation/Error.h"

/// Stops the fuzzer, which keeps the input, when an invariant does not hold.
inline void expect(bool holds, const char* what) {
  if (!holds) quorix::foundation::fatalError(what, "fuzz");
}
