#pragma once

#include "platform/foundation/Export.h"
#include "platform/text/AttributedText.h"

namespace quorix::text {

/// The direction that the words of `text` run in, whichever side its lines are aligned to: that of
/// its first letter, and left to right where it has none, so that "4,00 €" and "18 %" keep their
/// order on a page that is read from the right. On such a page a text with any letter of a
/// right-to-left script runs as the page does, also when it begins with a foreign name. Any thread.
QUORIX_EXPORT layout::LayoutDirection baseDirection(const AttributedText& text);

}  // namespace quorix::text
