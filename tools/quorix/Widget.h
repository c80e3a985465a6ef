#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/swiftui/View.h"
#include "qt/Picture.h"
#include "tools/quorix/CommandLine.h"

namespace quorix::tool {

/// The viewer of a widget: a user's language and settings, and a host's faces.
struct WidgetLook {
  std::string locale = "en";
  int appearance = 0;  ///< a `graphics::Appearance`
  int textSize = static_cast<int>(swiftui::ContentSizeCategory::large);
  std::optional<int> direction = {};            ///< absent: the language's direction
  std::optional<std::string> regularFont = {};  ///< a name or a font file
  std::optional<std::string> semiBoldFont = {};

  swiftui::Environment environment(double scale = 1) const;

  /// Replaces font files by the names of their faces. Needs an application object.
  std::optional<Failure> findFaces();
};

/// `own` options of a command, followed by those of a look.
std::vector<Option> withLook(WidgetLook& look, std::vector<Option> own);

/// From the smallest to the largest.
std::span<const std::string_view> textSizeNames();

/// The request of every command that shows a widget: its look, and the forms of the output.
struct WidgetRequest : WidgetLook {
  qt::PictureOptions picture = {};
  std::optional<std::string> out = {};  ///< a file
  bool tree = false;
  bool frames = false;
  bool accessibility = false;
  bool json = false;

  /// Checks the options and finds the faces.
  std::optional<Failure> prepare();
};

/// `own` options of a command, followed by those of every command that shows a widget.
std::vector<Option> withWidgetOptions(WidgetRequest& request, std::vector<Option> own);

/// Lays out `view` and produces all forms that `request` asks for. Writes the picture to its file
/// and returns the rest for printing. `printTree` is called after the layout. Needs the engine;
/// main thread.
Outcome showWidget(const swiftui::View& view, const WidgetRequest& request,
                   const std::function<std::string()>& printTree);

}  // namespace quorix::tool
