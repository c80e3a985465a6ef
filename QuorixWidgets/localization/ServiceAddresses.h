#pragma once

#include <string_view>

namespace quorix {

/// The addresses of the vendor's services: https, without a trailing slash.
inline constexpr std::string_view modulesServiceBaseURL = "https://modules.quorix.example";
inline constexpr std::string_view widgetServiceBaseURL = "https://widget.quorix.example";

}  // namespace quorix
