#pragma once

#include <QByteArray>
#include <QImage>
#include <optional>
#include <string>

#include "tools/quorix/Failure.h"

namespace quorix::tool {

/// Writes `bytes` to a file at `path`; one that was there stays when that fails.
std::optional<Failure> writeFile(const std::string& path, const QByteArray& bytes);

/// Writes `image` to a PNG file at `path`, likewise.
std::optional<Failure> writePicture(const QImage& image, const std::string& path);

}  // namespace quorix::tool
