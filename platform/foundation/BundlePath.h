#pragma once

#include <string_view>

namespace quorix::foundation {

/// Whether `path` names something inside a bundle: relative, made of plain names with one "/"
/// between them. Refuses what a file system would read otherwise: "..", ".", drives, "\", NUL.
bool isInnerPath(std::string_view path);

}  // namespace quorix::foundation
