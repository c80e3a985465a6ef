#pragma once

#include <variant>

#include "platform/swiftui/Color.h"
#include "platform/swiftui/Font.h"

namespace quorix::swiftui {

namespace modifiers {

struct FontChoice {
  Font font;
};
struct Weight {
  FontWeight weight;
};
struct Bold {};
struct Underline {
  bool active;
};
struct ForegroundColor {
  Color color;
};

}  // namespace modifiers

/// The modifiers that a text can carry itself.
using TextModifier = std::variant<modifiers::FontChoice, modifiers::Weight, modifiers::Bold,
                                  modifiers::Underline, modifiers::ForegroundColor>;

}  // namespace quorix::swiftui
