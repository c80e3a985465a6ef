#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <variant>

#include "platform/foundation/Export.h"
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
struct Look;

/// What reaches down from a modifier to the texts and images below it: how it changes the look
/// there, and how a printed tree words it.
namespace looks {

struct FontChoice {
  Font font;
  void apply(Look& look) const;
  std::string description() const;
};
struct Weight {
  FontWeight weight;
  void apply(Look& look) const;
  std::string description() const;
};
struct Bold {
  void apply(Look& look) const;
  std::string description() const;
};
struct Underline {
  bool active;
  void apply(Look& look) const;
  std::string description() const;
};
struct Strikethrough {
  bool active;
  void apply(Look& look) const;
  std::string description() const;
};
struct ForegroundColor {
  Color color;
  void apply(Look& look) const;
  std::string description() const;
};
struct Case {
  TextCase value;
  void apply(Look& look) const;
  std::string description() const;
};
struct Resizable {
  void apply(Look& look) const;
  std::string description() const;
};

}  // namespace looks

/// The looks that a text can carry itself.
using TextLook = std::variant<looks::FontChoice, looks::Weight, looks::Bold, looks::Underline,
                              looks::ForegroundColor>;

/// What reaches down to descendants. Each modifier overwrites what came from further out. It points
/// into the modifiers that set it.
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

  /// The color to draw with; a name that the bundle does not know draws nothing.
  graphics::RGBA drawnColor(const Environment& environment) const;
  /// `text` as it stands in this look.
  text::AttributedText attributed(const Text& text, const Environment& environment) const;
};

/// The value of `color` to draw with, likewise.
graphics::RGBA drawnColor(const Color& color, const Environment& environment);

}  // namespace quorix::swiftui
