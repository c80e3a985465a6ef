#pragma once

#include <tuple>

#include "platform/foundation/Runtime.h"

namespace quorix::testing {

template <class Pieces>
struct FreshPieces;
template <class... T>
struct FreshPieces<std::tuple<T*...>> {
  std::tuple<foundation::Runtime::Fresh<T>...> pieces;
};

/// The process's state as at its start, until the end of the block.
using FreshRuntime = FreshPieces<foundation::Runtime::Pieces>;

}  // namespace quorix::testing
