#include "platform/swiftui/Text.h"

#include "platform/foundation/LocalizedString.h"

namespace quorix::swiftui {

Text Text::with(TextLook look) const {
  Text copy = *this;
  copy.looks_.push_back(std::move(look));
  return copy;
}

Text Text::font(Font font) const { return with(looks::FontChoice{std::move(font)}); }

Text Text::fontWeight(FontWeight weight) const { return with(looks::Weight{weight}); }

Text Text::bold() const { return with(looks::Bold{}); }

Text Text::underline(bool active) const { return with(looks::Underline{active}); }

Text Text::foregroundColor(Color color) const {
  return with(looks::ForegroundColor{std::move(color)});
}

Text operator+(Text first, Text second) {
  // A sum with looks of its own stays a part of its own: they are not the second text's.
  if (!first.parts_.empty() && first.looks_.empty()) {
    first.parts_.push_back(std::move(second));
    return first;
  }
  Text sum = Text::verbatim("");
  sum.parts_ = {std::move(first), std::move(second)};
  return sum;
}

std::string Text::resolved(std::string_view language) const {
  if (parts_.empty()) {
    return localized_ ? foundation::localizedString(text_, arguments_, language) : text_;
  }
  std::string words;
  for (const Text& part : parts_) words += part.resolved(language);
  return words;
}

}  // namespace quorix::swiftui
