#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "platform/graphics/RGBA.h"

namespace quorix::graphics {

enum class ColorSpace : std::uint8_t { sRGB, displayP3 };

/// The colour with these components, in any of the spellings that design tools write: "0xFF", "255"
/// or "1.000". Alpha is opaque when empty, and a fraction also without a decimal point ("1").
/// Fractions outside 0 to 1 are clamped; colours outside sRGB become the nearest channel by
/// channel. Nothing for any other text.
std::optional<RGBA> makeColor(ColorSpace space, std::string_view red, std::string_view green,
                              std::string_view blue, std::string_view alpha);

}  // namespace quorix::graphics
