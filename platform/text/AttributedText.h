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

/// What a text element shows, in reading order, with the paragraph's base direction.
struct AttributedText {
  std::vector<Run> runs;
  layout::LayoutDirection direction = layout::LayoutDirection::leftToRight;
  bool operator==(const AttributedText&) const = default;
};

}  // namespace quorix::text
