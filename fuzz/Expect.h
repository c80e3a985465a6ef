#pragma once

#include "platform/foundation/Error.h"

/// Stops the fuzzer if an invariant fails. The fuzzer then saves the input.
inline void expect(bool holds, const char* what) {
  if (!holds) quorix::foundation::fatalError(what, "fuzz");
}
