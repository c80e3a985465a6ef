#pragma once

#include <cstddef>

#include "platform/text/AttributedText.h"

namespace quorix::qt {

/// Compares and hashes texts by what shaping depends on: characters, fonts and direction, not
/// colours and decorations.
struct TextIdentity {
  std::size_t operator()(const text::AttributedText* text) const;
  bool operator()(const text::AttributedText* one, const text::AttributedText* other) const;
};

}  // namespace quorix::qt
