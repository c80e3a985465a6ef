#pragma once

#include <optional>
#include <string>

#include "platform/graphics/RGBA.h"
#include "platform/layout/Geometry.h"
#include "platform/swiftui/Environment.h"
#include "qt/Picture.h"
#include "tools/quorix/OptionReader.h"

namespace quorix::tool {

/// Who looks at a widget: a user's language and settings, and the faces of a host.
struct WidgetLook {
  std::string locale = "en";
  graphics::Appearance appearance = graphics::Appearance::light;
  swiftui::ContentSizeCategory textSize = swiftui::ContentSizeCategory::large;
  std::optional<layout::LayoutDirection> direction = {};  ///< absent: the language's
  std::optional<std::string> regularFont = {};            ///< a name or a font file
  std::optional<std::string> semiBoldFont = {};           ///< likewise

  /// What the options of a look were given. What is wrong with them, `read` remembers.
  static WidgetLook from(OptionReader& read);

  /// The direction in force.
  layout::LayoutDirection readingDirection() const;

  /// Replaces faces that were given as files by their names. Needs an application object.
  std::optional<Failure> findFaces();
};

/// What every command that shows a widget is asked: how the widget is to look, and in which forms
/// it is wanted.
struct WidgetRequest : WidgetLook {
  qt::PictureOptions picture = {};

  std::optional<std::string> out = {};  ///< a file
  bool tree = false;
  bool frames = false;
  bool accessibility = false;
  bool json = false;

  /// What `widgetOptions` were given. What is wrong with them, `read` remembers.
  static WidgetRequest from(OptionReader& read);
};

}  // namespace quorix::tool
