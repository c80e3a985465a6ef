#pragma once

#include <QByteArray>
#include <QImage>
#include <cstddef>
#include <optional>
#include <string>
#include <variant>

#include "tools/quorix/Failure.h"

namespace quorix::tool {

/// Bytes; far more than any token or table needs.
inline constexpr std::size_t largestInput = 64'000'000;

/// The bytes of the file at `path`, or a failure that names it and says what is wrong.
std::variant<std::string, Failure> readInputFile(const std::string& path);

/// Writes `bytes` to a file at `path`; one that was there stays when that fails.
std::optional<Failure> writeFile(const std::string& path, const QByteArray& bytes);

/// Writes `image` to a PNG file at `path`, likewise.
std::optional<Failure> writePicture(const QImage& image, const std::string& path);

}  // namespace quorix::tool
