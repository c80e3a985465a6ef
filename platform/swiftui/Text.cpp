#include "platform/swiftui/Text.h"

#include "platform/foundation/LocalizedString.h"

namespace quorix::swiftui {

Text Text::with(TextModifier modifier) const {
  Text copy = *this;
  copy.modifiers_.push_back(std::move(modifier));
  return copy;
}

Text Text::font(Font font) const { return with(modifiers::FontChoice{std::move(font)}); }

Text Text::fontWeight(FontWeight weight) const { return with(modifiers::Weight{weight}); }

Text Text::bold() const { return with(modifiers::Bold{}); }

Text Text::underline(bool active) const { return with(modifiers::Underline{active}); }

Text Text::foregroundColor(Color color) const {
  return with(modifiers::ForegroundColor{std::move(color)});
}

Text operator+(Text first, Text second) {
  // A sum with looks of its own stays a part of its own: they are not the second text's.
  if (!first.parts_.empty() && first.modifiers_.empty()) {
    first.parts_.push_back(std::move(second));
    return first;
  }
  Text sum = Text::verbatim("");
  sum.parts_ = {std::move(first), std::move(second)};
  return sum;
}

std::string Text::resolved() const {
  if (parts_.empty()) return localized_ ? foundation::localizedString(text_, arguments_) : text_;
  std::string words;
  for (const Text& part : parts_) words += part.resolved();
  return words;
}

}  // namespace quorix::swiftui
