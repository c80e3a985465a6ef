#pragma once

#include <optional>

#include "platform/swiftui/Environment.h"
#include "platform/swiftui/Modifiers.h"
#include "platform/swiftui/Text.h"
#include "platform/text/AttributedText.h"

namespace quorix::swiftui {

/// What reaches down to descendants. Each modifier overwrites what came from further out. It points
/// into the modifiers that gave it.
struct Look {
  const Font* font = nullptr;
  const Color* color = nullptr;
  std::optional<FontWeight> weight;
  std::optional<TextCase> textCase;
  bool underline = false;
  bool strikethrough = false;
  bool resizable = false;
  bool inRow = false;     ///< the nearest stack is horizontal
  bool inColumn = false;  ///< the nearest stack is vertical

  void apply(const modifiers::FontChoice& m) { font = &m.font; }
  void apply(const modifiers::ForegroundColor& m) { color = &m.color; }
  void apply(const modifiers::Weight& m) { weight = m.weight; }
  void apply(const modifiers::Bold&) { weight = FontWeight::bold; }
  void apply(const modifiers::Case& m) { textCase = m.value; }
  void apply(const modifiers::Underline& m) { underline = m.active; }
  void apply(const modifiers::Strikethrough& m) { strikethrough = m.active; }
  void apply(const modifiers::Resizable&) { resizable = true; }

  /// The colour to draw with; a name that the bundle does not know draws nothing.
  graphics::RGBA drawnColor(const Environment& environment) const;
  /// `text` as it stands in this look.
  text::AttributedText attributed(const Text& text, const Environment& environment) const;
};

}  // namespace quorix::swiftui
