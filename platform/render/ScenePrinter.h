#pragma once

#include <string>

#include "platform/foundation/Export.h"
#include "platform/render/Scene.h"

namespace quorix::render {

// Prints a display list, for tools, tests and debugging. Lengths are points, rounded to three
// decimals. Any thread.

/// The painted items in paint order, then the hit areas, later ones on top. One line each: the
/// kind, the frame as x, y, width and height, and the content.
///
/// ```text
/// text 0 4 105 18 "YOUR RETURN FEE" Saans-Regular 14 #1A1A1CFF underline
/// text 0 22 70 18 "Top 20%" run "Top " Saans-Regular 14 #1A1A1CFF run "20%" Saans-Medium ...
/// image 304 22 24 24 "close" #000000FF
/// fill 16 120 311 1 #3C3C434A
/// hit 0 0 343 24
/// ```
QUORIX_EXPORT std::string printFrames(const Scene& scene);

/// The elements for assistive technology in reading order, one line each.
///
/// ```text
/// button 0 0 343 24 "Your return fee €4.00" hint "Tap to learn more" acts
/// ```
QUORIX_EXPORT std::string printAccessibility(const Scene& scene);

/// The same as JSON: {"size", "items": [...], "hitAreas": [...]} and an array of elements.
QUORIX_EXPORT std::string framesToJSON(const Scene& scene);
QUORIX_EXPORT std::string accessibilityToJSON(const Scene& scene);

}  // namespace quorix::render
