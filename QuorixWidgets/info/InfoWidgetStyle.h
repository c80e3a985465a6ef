#pragma once

#include <optional>
#include <string>
#include <utility>

#include "platform/swiftui/Color.h"

namespace quorix {

/// The look of an info widget. In the declarative widget, faces named here scale with the user's
/// text size. If a name is absent, the library's own face is used, which does not scale.
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
