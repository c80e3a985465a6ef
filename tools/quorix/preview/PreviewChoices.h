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

/// What a preview shows, as its controls stand.
struct PreviewChoices : WidgetLook {
  enum class Widget { score, info, imperative };

  /// What a control offers: a name for the command line, and one for the eye.
  struct Shopper {
    std::string name;
    QString title;
    std::string token;
  };

  Widget widget = Widget::score;
  std::size_t shopper = 0;  ///< of `shoppers`
  int width = 375;          ///< points, margins included
  bool sheet = false;

  // Given on the command line for good.
  std::vector<Shopper> shoppers = {};
  std::optional<std::string> translations = {};  ///< a file
  std::optional<std::string> resources = {};     ///< a folder
  std::optional<std::string> out = {};           ///< a file

  static constexpr int narrowest = 240;
  static constexpr int widest = 1024;
  static const std::span<const Option> options;

  static std::variant<PreviewChoices, Failure> read(const Arguments& arguments);

  /// The options that make these choices again.
  QStringList toWords() const;
};

}  // namespace quorix::tool
