#pragma once

#include <string>
#include <string_view>

#include "platform/graphics/RGBA.h"

namespace quorix::render {

// Writes values for printed trees, views and display lists. Any thread.

/// The shortest text that reads back as `value`, or "infinity".
std::string number(double value);
/// A length, rounded to three decimals.
std::string points(double length);
/// A JSON string, control characters escaped.
std::string inQuotes(std::string_view text);
/// "#1A1A1CFF".
std::string hex(graphics::RGBA color);

}  // namespace quorix::render
