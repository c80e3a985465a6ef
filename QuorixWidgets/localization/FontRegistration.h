#pragma once

#include <initializer_list>
#include <string_view>

namespace quorix {

/// Registers the library's faces of these names with the font manager, in order. The first that
/// fails stops the process: the library is built wrong, or someone has taken the face's name. So
/// does a second call with the same name.
void registerFontsOrStop(std::initializer_list<std::string_view> names);

}  // namespace quorix
