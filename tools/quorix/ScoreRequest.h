#pragma once

#include <optional>
#include <span>
#include <string>
#include <variant>

#include "tools/quorix/Arguments.h"
#include "tools/quorix/WidgetRequest.h"

namespace quorix::tool {

/// What "quorix score" was asked for.
struct ScoreRequest : WidgetRequest {
  std::string clientId = {};
  std::string token = {};
  std::optional<std::string> translations = {};  ///< a file

  static const std::span<const Option> options;

  /// The request that `arguments` make, with "-" for the token read from the standard input; or
  /// what is wrong with them.
  static std::variant<ScoreRequest, Failure> read(const Arguments& arguments);
};

}  // namespace quorix::tool
