#pragma once

#include <string_view>

namespace quorix {

/// The vendor's services: secure addresses without a trailing slash.
inline constexpr std::string_view modulesServiceBaseURL = "https://modules.quorix.example";
inline constexpr std::string_view widgetServiceBaseURL = "https://widget.quorix.example";

}  // namespace quorix
