#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <variant>

#include "platform/foundation/Export.h"
#include "platform/layout/Geometry.h"
#include "platform/swiftui/Color.h"
#include "platform/swiftui/Environment.h"
#include "platform/swiftui/Font.h"
#include "platform/text/AttributedText.h"

namespace quorix::swiftui {

enum class TextCase : std::uint8_t { uppercase };
enum class AccessibilityChildren : std::uint8_t { ignore };
enum class AccessibilityTrait : std::uint8_t { isButton, isHeader };
enum class TaskPriority : std::uint8_t { userInitiated };

class Text;

/// The look that modifiers set for their descendants. An inner modifier overwrites an outer one.
/// Points into the modifiers that set it.
struct Look {
  const Font* font = nullptr;
  const Color* color = nullptr;
  std::optional<FontWeight> weight;
  std::optional<TextCase> textCase;
  bool underline = false;
  bool strikethrough = false;
  bool resizable = false;
  std::optional<layout::Axis> stack;  ///< the axis of the nearest stack

  layout::Axis axis() const { return stack.value_or(layout::Axis::vertical); }

  /// The color to draw with; transparent if the bundle does not have the named color.
  graphics::RGBA drawnColor(const Environment& environment) const;
  /// `text` with this look.
  text::AttributedText attributed(const Text& text, const Environment& environment) const;
};

/// The looks that modifiers set for the texts and images below them. Each changes a `Look` and
/// writes itself into a printed tree.
namespace looks {

struct FontChoice {
  Font font;
  void apply(Look& look) const { look.font = &font; }
  std::string description() const;
};
struct Weight {
  FontWeight weight;
  void apply(Look& look) const { look.weight = weight; }
  std::string description() const;
};
struct Bold {
  void apply(Look& look) const { look.weight = FontWeight::bold; }
  std::string description() const { return ".bold()"; }
};
struct Underline {
  bool active;
  void apply(Look& look) const { look.underline = active; }
  std::string description() const;
};
struct Strikethrough {
  bool active;
  void apply(Look& look) const { look.strikethrough = active; }
  std::string description() const;
};
struct ForegroundColor {
  Color color;
  void apply(Look& look) const { look.color = &color; }
  std::string description() const;
};
struct Case {
  TextCase value;
  void apply(Look& look) const { look.textCase = value; }
  std::string description() const { return ".textCase(uppercase)"; }
};
struct Resizable {
  void apply(Look& look) const { look.resizable = true; }
  std::string description() const { return ".resizable(stretch)"; }
};

}  // namespace looks

/// The looks that a text can have itself.
using TextLook = std::variant<looks::FontChoice, looks::Weight, looks::Bold, looks::Underline,
                              looks::ForegroundColor>;

/// The value of `color` to draw with; transparent if the bundle does not have it.
graphics::RGBA drawnColor(const Color& color, const Environment& environment);

}  // namespace quorix::swiftui
