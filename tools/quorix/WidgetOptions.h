#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

#include "tools/quorix/Option.h"

namespace quorix::tool {

// Of every command in which a user looks at a widget; `WidgetLook` reads them.
inline constexpr Option localeOption{"--locale", "CODE",
                                     "Language code of the texts (default en)."};
inline constexpr Option sheetOption{"--sheet", "", "Opens the sheet, as a tap on the widget does."};
inline constexpr Option appearanceOption{"--appearance", "NAME", "light or dark (default light)."};
inline constexpr Option textSizeOption{
    "--text-size", "NAME",
    "The user's text size; names below (default large). Only the\nfaces "
    "given with the next two options follow it."};
inline constexpr Option regularFontOption{
    "--regular-font", "FACE",
    "Name of a face, or a font file, for regular text (default the\n"
    "library's own)."};
inline constexpr Option semiBoldFontOption{"--semi-bold-font", "FACE",
                                           "Likewise for emphasised text."};
inline constexpr Option directionOption{"--direction", "NAME",
                                        "ltr or rtl (default that of the locale's script)."};

/// The options of every command that shows a widget as a picture or in words; `WidgetRequest` reads
/// them.
inline constexpr auto widgetOptions = std::to_array<Option>({
    localeOption,
    sheetOption,
    {"--out", "FILE.png", "Writes the picture."},
    {"--tree", "", "Prints the view tree: every element and what it was told."},
    {"--frames", "",
     "Prints where everything stands, in points from the top left:\nx, y, width, "
     "height."},
    {"--accessibility", "",
     "Prints what a screen reader meets, in order. This is the\ndefault when "
     "no output is named."},
    {"--json", "", "Prints frames and accessibility as one JSON object."},
    {"--width", "POINTS",
     "Width of the widget, with --sheet of the window, 1 to 10000\n"
     "(default 375)."},
    {"--height", "POINTS",
     "Height, 1 to 10000 (default what the widget needs, with\n--sheet twice the "
     "width)."},
    {"--scale", "FACTOR", "Pixels for each point, 0.5 to 10 (default 1)."},
    appearanceOption,
    textSizeOption,
    regularFontOption,
    semiBoldFontOption,
    directionOption,
});

/// What help says below them.
inline constexpr std::string_view widgetDetails =
    "Text sizes: extraSmall, small, medium, large, extraLarge, extraExtraLarge,\n"
    "extraExtraExtraLarge, accessibilityMedium, accessibilityLarge,\n"
    "accessibilityExtraLarge, accessibilityExtraExtraLarge,\n"
    "accessibilityExtraExtraExtraLarge.";

/// A command's own options, and then those of every widget.
template <std::size_t count>
constexpr auto withWidgetOptions(const Option (&own)[count]) {
  std::array<Option, count + widgetOptions.size()> all{};
  std::copy(widgetOptions.begin(), widgetOptions.end(), std::copy(own, own + count, all.begin()));
  return all;
}

}  // namespace quorix::tool
