#pragma once

#include <optional>
#include <string>

#include "qt/PictureOptions.h"
#include "tools/quorix/OptionReader.h"

namespace quorix::tool {

/// What every command that shows a widget is asked: how the widget is to look, and in which forms
/// it is wanted.
struct WidgetRequest {
  std::string locale;
  std::optional<std::string> regularFont;   ///< a name or a font file
  std::optional<std::string> semiBoldFont;  ///< likewise
  qt::PictureOptions picture;

  std::optional<std::string> out;  ///< a file
  bool tree = false;
  bool frames = false;
  bool accessibility = false;
  bool json = false;

  /// What `widgetOptions` were given. What is wrong with them, `read` remembers.
  static WidgetRequest from(OptionReader& read);

  /// Replaces faces that were given as files by their names. Needs an application object.
  std::optional<Failure> findFaces();
};

}  // namespace quorix::tool
