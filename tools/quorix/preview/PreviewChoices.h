#pragma once

#include <QStringList>
#include <optional>
#include <span>
#include <string>
#include <variant>
#include <vector>

#include "tools/quorix/Arguments.h"
#include "tools/quorix/WidgetRequest.h"

namespace quorix::tool {

/// The choices of a preview, by its controls.
struct PreviewChoices : WidgetLook {
  enum class Widget { score, info, imperative };

  /// An entry of a control: its name on the command line and its title.
  struct Shopper {
    std::string name;
    QString title;
    std::string token;
  };

  Widget widget = Widget::score;
  std::size_t shopper = 0;  ///< index into `shoppers`
  int width = 375;          ///< points, with margins
  bool sheet = false;

  // From the command line; the controls do not change them.
  std::vector<Shopper> shoppers = {};
  std::optional<std::string> translations = {};  ///< a file
  std::optional<std::string> resources = {};     ///< a folder
  std::optional<std::string> out = {};           ///< a file

  static constexpr int narrowest = 240;
  static constexpr int widest = 1024;
  static const std::span<const Option> options;

  static std::variant<PreviewChoices, Failure> read(const Arguments& arguments);

  /// The command line options for these choices.
  QStringList toWords() const;
};

}  // namespace quorix::tool
