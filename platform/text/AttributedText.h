#pragma once

#include <algorithm>
#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "platform/graphics/FontWeight.h"
#include "platform/graphics/RGBA.h"
#include "platform/layout/Geometry.h"

namespace quorix::text {

/// A face at its final size, for a text engine to look up and draw with.
struct ResolvedFont {
  std::string name;  ///< PostScript or family name; empty for the system's font
  double points = 17;
  graphics::FontWeight weight = graphics::FontWeight::regular;
  bool operator==(const ResolvedFont&) const = default;
};

/// A stretch of text with one look.
struct Run {
  std::string text;  ///< UTF-8
  ResolvedFont font;
  graphics::RGBA color;
  bool underline = false;
  bool strikethrough = false;
  bool thickUnderline = false;  ///< the underline is twice as thick
  bool operator==(const Run&) const = default;
};

/// The runs of a text element, in reading order.
struct AttributedText {
  std::vector<Run> runs;
  /// The direction of the page, which sets the side that lines are aligned to. `baseDirection`
  /// returns the direction of the words.
  layout::LayoutDirection direction = layout::LayoutDirection::leftToRight;
  bool operator==(const AttributedText&) const = default;

  /// A copy with all font sizes multiplied by `part`.
  AttributedText scaled(double part) const {
    AttributedText copy = *this;
    for (Run& run : copy.runs) run.font.points *= part;
    return copy;
  }

  /// Whether both have the same shapes: characters, fonts and direction, but perhaps other colors
  /// and decorations.
  bool isShapedAs(const AttributedText& other) const {
    return direction == other.direction &&
           std::ranges::equal(runs, other.runs, [](const Run& a, const Run& b) {
             return a.text == b.text && a.font == b.font;
           });
  }

  /// The same for all texts of the same shapes.
  std::size_t shapeHash() const {
    auto hash = static_cast<std::size_t>(direction);
    const auto mix = [&](std::size_t value) {
      hash ^= value + 0x9e3779b97f4a7c15ULL + (hash << 6) + (hash >> 2);
    };
    for (const Run& run : runs) {
      mix(std::hash<std::string>{}(run.text));
      mix(std::hash<double>{}(run.font.points));
    }
    return hash;
  }
};

}  // namespace quorix::text
