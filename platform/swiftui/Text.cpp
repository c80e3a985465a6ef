#include "platform/swiftui/Text.h"

#include "platform/foundation/LocalizedString.h"

namespace quorix::swiftui {

std::string Text::resolved() const {
  return localized_ ? foundation::localizedString(text_, arguments_) : text_;
}

}  // namespace quorix::swiftui
