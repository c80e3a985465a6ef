#pragma once

#include <string>

#include "platform/foundation/Export.h"
#include "platform/uikit/UIView.h"

namespace quorix::uikit {

/// Prints `view` and its subviews. For each: the class, the frame in its superview after the latest
/// layout, in points, and the content; then its constraints, and its subviews from the bottom to
/// the top. Main thread.
///
///     UIView 0 0 343 80 background "WidgetBackground"
///         .constraint(UILabel[0].top = UIView.top + 16)
///       UILabel 16 16 311 16 "Read more" link taps
QUORIX_EXPORT std::string printViews(const UIView& view);

}  // namespace quorix::uikit
