#pragma once

#include <string>
#include <vector>

#include "platform/graphics/RGBA.h"
#include "platform/layout/Geometry.h"
#include "platform/swiftui/Font.h"

namespace quorix::text {

/// A face at its final size: what a text engine looks up and draws with.
struct ResolvedFont {
  std::string name;  ///< PostScript or family name; empty for the system's font
  double points = 17;
  swiftui::FontWeight weight = swiftui::FontWeight::regular;
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

/// What a text element shows, in reading order.
struct AttributedText {
  std::vector<Run> runs;
  /// Of the page: lines are aligned to the side that it reads from. `baseDirection` tells which way
  /// the words run.
  layout::LayoutDirection direction = layout::LayoutDirection::leftToRight;
  bool operator==(const AttributedText&) const = default;

  /// The same in letters of `part` their size.
  AttributedText scaled(double part) const {
    AttributedText copy = *this;
    for (Run& run : copy.runs) run.font.points *= part;
    return copy;
  }
};

}  // namespace quorix::text
