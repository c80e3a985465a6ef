#pragma once

#include <string>
#include <string_view>

#include "platform/graphics/RGBA.h"

namespace quorix::render {

// How printed scenes and views word the values in them. Any thread.

/// To three decimals at most.
std::string number(double value);
/// A JSON text; as good for reading.
std::string quoted(std::string_view text);
/// "#1A1A1CFF".
std::string hex(graphics::RGBA color);

}  // namespace quorix::render
