#pragma once

#include <optional>
#include <string>
#include <utility>

#include "platform/swiftui/Color.h"

namespace quorix {

/// The look of an info widget. A face named here follows the user's text size in the declarative
/// widget; the library's own faces, used where a name is absent, keep their size.
///
///     InfoWidgetStyle plain{std::nullopt, std::nullopt, std::nullopt, false};
///     InfoWidgetStyle ours{"OpenSans-Regular", "OpenSans-SemiBold",
///                          swiftui::Color::fixed({250, 247, 240}), true};
struct InfoWidgetStyle {
  std::optional<std::string> regularFont;         ///< PostScript or family name
  std::optional<std::string> semiBoldFont;        ///< PostScript or family name, for the figure
  std::optional<swiftui::Color> backgroundColor;  ///< absent: the library's own
  bool showBorder;                                ///< one point, in the color of the text

  InfoWidgetStyle(std::optional<std::string> regularFace, std::optional<std::string> semiBoldFace,
                  std::optional<swiftui::Color> background, bool border)
      : regularFont(std::move(regularFace)),
        semiBoldFont(std::move(semiBoldFace)),
        backgroundColor(std::move(background)),
        showBorder(border) {}
};

}  // namespace quorix
