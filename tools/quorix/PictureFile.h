#pragma once

#include <optional>
#include <string>

#include "platform/render/Scene.h"
#include "qt/PictureOptions.h"
#include "tools/quorix/Failure.h"

namespace quorix::tool {

/// Paints `scene` into a PNG file at `path`; a file that was there stays when that fails.
std::optional<Failure> writePicture(const render::Scene& scene, const qt::PictureOptions& options,
                                    const std::string& path);

}  // namespace quorix::tool
