#pragma once

#include <optional>
#include <string>

namespace quorix {

/// The faces of a score widget. Faces named here scale with the user's text size. If a name is
/// absent, the library's own face is used, which does not scale. An unknown name selects the
/// system's font.
///
///     ScoreWidgetStyle style{"OpenSans-Regular", "OpenSans-SemiBold"};
///     ScoreWidgetStyle plain{std::nullopt, std::nullopt};
struct ScoreWidgetStyle {
  std::optional<std::string> regularFont;   ///< PostScript or family name, for regular text
  std::optional<std::string> semiBoldFont;  ///< PostScript or family name, for emphasised text

  ScoreWidgetStyle(std::optional<std::string> regularFace, std::optional<std::string> semiBoldFace)
      : regularFont(std::move(regularFace)), semiBoldFont(std::move(semiBoldFace)) {}
};

}  // namespace quorix
