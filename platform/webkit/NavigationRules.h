#pragma once

#include <string_view>

namespace quorix::webkit {

/// Whether a page in the app may lead to an address of `scheme` (lower case): only to what the web
/// itself serves. Files of the device and the engine's own pages are none of that.
constexpr bool mayNavigateTo(std::string_view scheme) {
  return scheme == "https" || scheme == "http" || scheme == "about" || scheme == "blob" ||
         scheme == "data";
}

}  // namespace quorix::webkit
