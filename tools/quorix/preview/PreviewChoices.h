#pragma once

#include <QString>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "tools/quorix/Widget.h"

namespace quorix::tool {

/// The choices of a preview, by its controls.
struct PreviewChoices : WidgetLook {
  /// In the order of the command line's names and the controls' titles.
  enum Widget { score, info, imperative };

  /// An entry of a control.
  struct Shopper {
    QString title;
    std::string token;
  };

  int widget = score;
  std::optional<int> shopper = {};  ///< index into `shoppers`; set by `prepare`
  double width = 375;               ///< points, with margins
  bool sheet = false;

  // From the command line; the controls do not change them.
  std::vector<Shopper> shoppers = {};
  std::optional<std::string> token = {};
  std::optional<std::string> translations = {};  ///< a file
  std::optional<std::string> resources = {};     ///< a folder
  std::optional<std::string> out = {};           ///< a file
  /// The regular and the semi-bold face as given: names or files.
  std::pair<std::optional<std::string>, std::optional<std::string>> givenFaces = {};

  static constexpr int narrowest = 240;
  static constexpr int widest = 1024;

  /// The command line options for these choices.
  std::vector<Option> options();

  /// Checks the choices and sets the shoppers.
  std::optional<Failure> prepare();
};

}  // namespace quorix::tool
