#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

#include "platform/swiftui/Environment.h"
#include "tools/quorix/Arguments.h"

namespace quorix::tool {

inline constexpr std::string_view appearanceNames[] = {"light", "dark"};
inline constexpr std::string_view directionNames[] = {"ltr", "rtl"};

/// From the smallest to the largest.
inline const auto textSizeNames = [] {
  constexpr auto last = swiftui::ContentSizeCategory::accessibilityExtraExtraExtraLarge;
  std::array<std::string_view, static_cast<std::size_t>(last) + 1> names;
  for (std::size_t i = 0; i < names.size(); ++i) {
    names[i] = nameOf(static_cast<swiftui::ContentSizeCategory>(i));
  }
  return names;
}();

// Options of all commands that display a widget. `WidgetLook` reads them.
inline constexpr Option localeOption{"--locale", "CODE",
                                     "Language code of the texts (default en)."};
inline constexpr Option sheetOption{"--sheet", "", "Opens the sheet, as a tap on the widget does."};
inline constexpr Option appearanceOption{"--appearance", "NAME", "{} (default light).",
                                         appearanceNames};
inline constexpr Option textSizeOption{
    "--text-size", "NAME",
    "The user's text size: {} (default large). Only the faces given with the next two options "
    "follow it.",
    textSizeNames};
inline constexpr Option regularFontOption{
    "--regular-font", "FACE",
    "Name of a face, or a font file, for regular text (default the library's own)."};
inline constexpr Option semiBoldFontOption{"--semi-bold-font", "FACE",
                                           "Likewise for emphasised text."};
inline constexpr Option directionOption{
    "--direction", "NAME", "{} (default that of the locale's script).", directionNames};

/// Options of all commands that show a widget as a picture or in words. `WidgetRequest` reads them.
inline constexpr auto widgetOptions = std::to_array<Option>({
    localeOption,
    sheetOption,
    {"--out", "FILE.png", "Writes the picture."},
    {"--tree", "", "Prints the view tree: every element and what it was told."},
    {"--frames", "",
     "Prints where everything stands, in points from the top left: x, y, width, height."},
    {"--accessibility", "",
     "Prints what a screen reader meets, in order. This is the default when no output is named."},
    {"--json", "",
     "Prints frames and accessibility, or the one of them that is named, as one JSON object."},
    {"--width", "POINTS",
     "Width of the widget, with --sheet of the window, 1 to 10000 (default 375)."},
    {"--height", "POINTS",
     "Height, 1 to 10000 (default what the widget needs, with --sheet twice the width)."},
    {"--scale", "FACTOR", "Pixels for each point, 0.5 to 10 (default 1)."},
    appearanceOption,
    textSizeOption,
    regularFontOption,
    semiBoldFontOption,
    directionOption,
});

/// A command's own options, followed by those of every widget.
template <std::size_t count>
constexpr auto withWidgetOptions(const Option (&own)[count]) {
  std::array<Option, count + widgetOptions.size()> all{};
  std::copy(widgetOptions.begin(), widgetOptions.end(), std::copy(own, own + count, all.begin()));
  return all;
}

}  // namespace quorix::tool
