#pragma once

#include <optional>
#include <string>

#include "platform/graphics/RGBA.h"
#include "platform/layout/Geometry.h"
#include "platform/swiftui/Environment.h"
#include "qt/Picture.h"
#include "tools/quorix/OptionReader.h"

namespace quorix::tool {

/// The viewer of a widget: a user's language and settings, and a host's faces.
struct WidgetLook {
  std::string locale = "en";
  graphics::Appearance appearance = graphics::Appearance::light;
  swiftui::ContentSizeCategory textSize = swiftui::ContentSizeCategory::large;
  std::optional<layout::LayoutDirection> direction = {};  ///< absent: the language's direction
  std::optional<std::string> regularFont = {};            ///< a name or a font file
  std::optional<std::string> semiBoldFont = {};           ///< a name or a font file

  /// Reads the options of a look. `read` stores the first error.
  static WidgetLook from(OptionReader& read);

  /// The direction that applies.
  layout::LayoutDirection readingDirection() const;

  /// Replaces font files by the names of their faces. Needs an application object.
  std::optional<Failure> findFaces();
};

/// The request of every command that shows a widget: its look, and the forms of the output.
struct WidgetRequest : WidgetLook {
  qt::PictureOptions picture = {};

  std::optional<std::string> out = {};  ///< a file
  bool tree = false;
  bool frames = false;
  bool accessibility = false;
  bool json = false;

  /// Reads `widgetOptions`. `read` stores the first error.
  static WidgetRequest from(OptionReader& read);
};

}  // namespace quorix::tool
