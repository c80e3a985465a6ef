#pragma once

#include <optional>
#include <span>
#include <variant>

#include "platform/graphics/RGBA.h"
#include "tools/quorix/Arguments.h"
#include "tools/quorix/WidgetRequest.h"

namespace quorix::tool {

/// What "quorix info" was asked for.
struct InfoRequest : WidgetRequest {
  bool imperative = false;
  std::optional<graphics::RGBA> backgroundColor = {};
  bool border = false;

  static const std::span<const Option> options;

  /// The request that `arguments` make, or what is wrong with them.
  static std::variant<InfoRequest, Failure> read(const Arguments& arguments);
};

}  // namespace quorix::tool
