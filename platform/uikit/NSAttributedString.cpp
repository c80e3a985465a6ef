#include "platform/uikit/NSAttributedString.h"

#include "platform/foundation/Cache.h"
#include "platform/foundation/Runtime.h"

namespace quorix::uikit {

/// The latest few texts, by value.
struct SharedTexts : foundation::Cache<NSAttributedString, NSAttributedString> {
  SharedTexts() : Cache(8) {}  // a screen shows two texts in one or two languages
};

NSAttributedString NSAttributedString::shared() const {
  return foundation::Runtime::the<SharedTexts>().get(*this, [this] { return *this; });
}

}  // namespace quorix::uikit
